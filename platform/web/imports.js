// What the program imports is the page's, which has run before it.
[
  'listen', 'add', 'remove', 'attribute', 'property', 'unit', 'place', 'caption', 'font', 'textWidth', 'focus', 'show',
  'over', 'suspend', 'frame', 'resume', 'canvasMake', 'canvasSize', 'canvasClip', 'canvasColour', 'canvasTexture',
  'canvasFill', 'canvasPath', 'canvasDraw',
].forEach((name) => {
  LibraryManager.library[`page_${name}`] = `=page.${name}`;
});
