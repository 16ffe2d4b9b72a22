// What the page does for the program, and what it reports to it: nothing is decided here. The program knows elements by
// numbers, lengths in pixels of the screen.
/* global _page_key, _page_longPress, _page_mouse, _page_pressed, _page_recoloured, _page_resized, _page_shown */
/* global _page_slid, _page_touch, Asyncify, HEAP32, HEAPF64, UTF8ToString */
'use strict';

const page = {
  elements: {},
  last: 0, // number given
  ratio: 1, // pixels of the screen for each of the page
  ground: '', // the window's colour
  ruler: null,
  held: null, // the picture box on which a button went down that is still held
  pressTime: 0,
  wakeUp: null,
  // The pointer's keys and the form's, in the order of the program's.
  keys: ['ArrowLeft', 'ArrowUp', 'ArrowRight', 'ArrowDown', 'Home', 'PageUp', 'End', 'PageDown', ' ', 'f',
    'ContextMenu', 'F10', 'Enter', 'Escape', 'F1'],

  number(element) {
    element.number = ++page.last;
    page.elements[page.last] = element;
    return page.last;
  },
  css: (pixels) => `${pixels / page.ratio}px`,
  colours: {},
  colour: (bgr) => bgr < 0 ? page.ground
    : page.colours[bgr] ??= `rgb(${bgr & 255},${bgr >> 8 & 255},${bgr >> 16 & 255})`,
  context: (canvas) => page.elements[canvas].context,
  shiftKeys: (event) => event.shiftKey + 2 * event.ctrlKey + 4 * event.altKey + 8 * event.metaKey,

  key(event) {
    const name = event.key.length === 1 ? event.key.toLowerCase() : event.key;
    const letter = event.altKey && !event.ctrlKey && /^Key.$/.test(event.code) ? event.code.charCodeAt(3) : 0;
    if (!_page_key(document.activeElement.number ?? 0, page.keys.indexOf(name), letter, page.shiftKeys(event),
        event.repeat)) {
      event.preventDefault();
    }
  },
  // The document hears of a held button whatever has come up meanwhile; a browser may have dropped the capture.
  pointer(event) {
    const touches = event.pointerType === 'touch';
    const under = event.target.closest?.('.surface');
    if (event.type === 'pointerdown' && under && !touches) {
      page.held ??= under;
    }
    const box = touches ? under : page.held ?? under;
    if (page.held?.isConnected && event.buttons && !page.held.hasPointerCapture(event.pointerId)) {
      page.held.setPointerCapture(event.pointerId);
    }
    if (!event.buttons) {
      page.held = null;
    }
    if (!box?.isConnected) {
      return;
    }
    const place = box.getBoundingClientRect();
    const at = [(event.clientX - place.left) * page.ratio, (event.clientY - place.top) * page.ratio];
    if (!touches && event.type !== 'pointercancel') {
      _page_mouse(box.number, event.button, event.buttons, page.shiftKeys(event) & 7, ...at);
      return;
    }
    if (event.type !== 'pointermove') {
      clearTimeout(page.pressTime);
    }
    if (event.type === 'pointerdown') {
      page.pressTime = setTimeout(() => _page_longPress(box.number), 600);
    }
    const events = ['pointerdown', 'pointermove', 'pointerup', 'pointercancel'];
    _page_touch(box.number, events.indexOf(event.type), event.pointerId, ...at);
  },
  listen() {
    const on = (types, listener) => types.forEach((type) => document.addEventListener(type, listener, true));
    on(['keydown'], page.key);
    on(['keydown'], ({key}) => /^(Tab|Arrow)/.test(key) && document.body.classList.add('keys'));
    on(['pointerdown'], () => document.body.classList.remove('keys'));
    on(['pointerdown', 'pointermove', 'pointerup', 'pointercancel'], page.pointer);
    on(['contextmenu', 'dragstart'], (event) => event.preventDefault());
    on(['mousedown'], (event) => event.target.closest?.('.surface') && event.preventDefault());
    on(['click'], ({target}) => _page_pressed(target.closest?.('button')?.number ?? 0));
    on(['change'], ({target}) => target.type === 'radio' && _page_pressed(target.number));
    on(['input'], ({target}) => target.type === 'range' && _page_slid(target.number, target.valueAsNumber));
    on(['cancel', 'close'], (event) => {
      event.preventDefault();
      _page_key(0, page.keys.indexOf('Escape'), 0, 0, false);
    });
    on(['visibilitychange'], () => {
      page.held = null;
      document.hidden || _page_shown();
    });
    const learnColours = () => {
      page.ground = getComputedStyle(document.body).backgroundColor;
    };
    learnColours();
    matchMedia('(prefers-color-scheme: dark)').addEventListener('change', () => {
      learnColours();
      _page_recoloured();
    });

    const main = page.elements[0] = document.querySelector('main');
    main.replaceChildren();
    // Rounding is the browser's business; where it does not tell, or tells of another screen, it is ours.
    const exact = (told, length) => Math.abs(told - length) < 1 ? told : Math.round(length);
    const observer = new ResizeObserver(([{contentRect, devicePixelContentBoxSize: [told] = [{}]}]) => {
      const {width, height} = contentRect;
      // On fewer pixels than the smallest scale needs, what is shown is shrunk.
      const shrunk = Math.max(1, 480 / (width * devicePixelRatio), 336 / (height * devicePixelRatio));
      page.ratio = devicePixelRatio * shrunk;
      _page_resized(exact(told.inlineSize, width * page.ratio), exact(told.blockSize, height * page.ratio));
    });
    const observe = () => { // anew at another zoom, and on another screen
      observer.disconnect();
      observer.observe(main, {box: 'device-pixel-content-box'});
      matchMedia(`(resolution: ${devicePixelRatio}dppx)`).addEventListener('change', observe, {once: true});
    };
    observe();
  },

  // Elements.

  add(parent, tag, classes) {
    const element = document.createElement(UTF8ToString(tag));
    element.className = UTF8ToString(classes);
    page.elements[parent].append(element);
    return page.number(element);
  },
  remove(number) {
    const element = page.elements[number];
    element?.close?.();
    element?.remove();
    for (const inside of [element, ...element?.querySelectorAll('*') ?? []]) {
      delete page.elements[inside?.number];
    }
  },
  attribute(number, name, value) {
    page.elements[number].setAttribute(UTF8ToString(name), UTF8ToString(value));
  },
  property(number, name, value) {
    page.elements[number][UTF8ToString(name)] = value;
  },
  length(number, name, pixels) {
    page.elements[number].style.setProperty(UTF8ToString(name), page.css(pixels));
  },
  place(number, left, top, width, height) {
    const {style} = page.elements[number];
    [style.left, style.top, style.width, style.height] = [left, top, width, height].map(page.css);
  },
  // The ampersand marks the access key.
  caption(number, text) {
    const [before, after] = UTF8ToString(text).replaceAll('\r', '').split('&');
    const mark = document.createElement('u');
    mark.textContent = after?.[0];
    page.elements[number].replaceChildren(before, ...after ? [mark, after.slice(1)] : []);
  },
  font(number, pixels, stretch) {
    const {style} = page.elements[number];
    style.fontSize = page.css(pixels);
    style.width = stretch < 100 ? `${10000 / stretch}%` : '';
    style.transform = stretch < 100 ? `scaleX(${stretch}%)` : '';
  },
  textWidth(text, pixels, bold) {
    page.ruler ??= document.createElement('canvas').getContext('2d');
    page.ruler.font = `${bold ? 'bold ' : ''}${pixels}px system-ui,sans-serif`;
    return page.ruler.measureText(UTF8ToString(text)).width;
  },
  focus(number) {
    page.elements[number].focus({preventScroll: true});
  },
  show(number) {
    const element = page.elements[number];
    document.body.classList.remove('keys');
    element.hidden = false;
    element.showModal?.();
    [...element.querySelectorAll('[tabindex]')].sort((one, other) => one.tabIndex - other.tabIndex)[0]?.focus();
  },
  title(text) {
    document.title = UTF8ToString(text);
  },
  over() {
    document.body.classList.add('over');
    document.querySelector('#over a').focus();
  },

  // Waiting.

  suspend() {
    return Asyncify.handleSleep((wakeUp) => {
      page.wakeUp = wakeUp;
    });
  },
  resume() {
    queueMicrotask(page.wakeUp);
  },
  // A hidden page gets no frames.
  frame() {
    return Asyncify.handleSleep((wakeUp) => {
      let waits = true;
      const once = () => waits && (waits = false, wakeUp());
      requestAnimationFrame(() => setTimeout(once));
      setTimeout(once, document.hidden ? 0 : 100);
    });
  },
  now() {
    return performance.now();
  },

  // Canvases.

  canvasMake() {
    return page.number(document.createElement('canvas'));
  },
  // Between two calls nothing is transformed.
  canvasSize(canvas, width, height) {
    const element = page.elements[canvas];
    [element.width, element.height] = [width, height];
    element.context = element.getContext('2d');
    element.context.imageSmoothingEnabled = false;
    element.context.save();
  },
  canvasClip(canvas, left, top, width, height) {
    const context = page.context(canvas);
    context.restore();
    context.save();
    context.beginPath();
    context.rect(left, top, width, height);
    context.clip();
  },
  canvasFill(canvas, left, top, width, height, colour) {
    const context = page.context(canvas);
    context.fillStyle = page.colour(colour);
    context.fillRect(left, top, width, height);
  },
  // Takes up a path to fill or to stroke, and leaves it transformed: for each step seven numbers of eight bytes, of
  // which the first is a whole one of four.
  canvasPath(canvas, transform, steps, count) {
    const context = page.context(canvas);
    context.setTransform(...HEAPF64.subarray(transform >> 3, (transform >> 3) + 6));
    context.beginPath();
    for (let step = steps >> 3; count > 0; --count, step += 7) {
      const [x, y, x1, y1, x2, y2] = HEAPF64.subarray(step + 1, step + 7);
      switch (HEAP32[2 * step]) {
        case 0: context.moveTo(x, y); break;
        case 1: context.lineTo(x, y); break;
        case 2: context.bezierCurveTo(x1, y1, x2, y2, x, y); break;
        default: context.closePath();
      }
    }
  },
  canvasFillPath(canvas, colour) {
    const context = page.context(canvas);
    context.fillStyle = page.colour(colour);
    context.fill();
    context.resetTransform();
  },
  canvasFillTexture(canvas, texture, x, y) {
    const context = page.context(canvas);
    context.setTransform(1, 0, 0, 1, x, y);
    context.fillStyle = context.createPattern(page.elements[texture], 'repeat');
    context.fill();
    context.resetTransform();
  },
  canvasStroke(canvas, colour, width, round) {
    const context = page.context(canvas);
    context.strokeStyle = page.colour(colour);
    context.lineWidth = width;
    context.lineCap = round ? 'round' : 'butt';
    context.lineJoin = round ? 'round' : 'miter';
    context.stroke();
    context.resetTransform();
  },
  canvasDraw(canvas, from, left, top, width, height, x, y, mirrored, upsideDown) {
    const context = page.context(canvas);
    context.setTransform(mirrored ? -1 : 1, 0, 0, upsideDown ? -1 : 1, x + (mirrored ? width : 0),
      y + (upsideDown ? height : 0));
    context.drawImage(page.elements[from], left, top, width, height, 0, 0, width, height);
    context.resetTransform();
  },
};
