// What the program imports is the page's, which has run before it.
const names = [
  'listen',
  'add',
  'remove',
  'attribute',
  'property',
  'length',
  'place',
  'caption',
  'font',
  'textWidth',
  'focus',
  'showModal',
  'title',
  'over',
  'suspend',
  'frame',
  'resume',
  'now',
  'canvasMake',
  'canvasSize',
  'canvasClip',
  'canvasFill',
  'canvasPath',
  'canvasFillPath',
  'canvasFillTexture',
  'canvasStroke',
  'canvasDraw',
];
for (const name of names) {
  LibraryManager.library[`page_${name}`] = `=page.${name}`;
}
