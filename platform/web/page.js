// What the page does for the program, and what it reports to it: nothing is decided here. The program knows elements by
// numbers, lengths in pixels of the screen.
/* global _page_accessKey, _page_input, _page_key, _page_longPress, _page_pointer, _page_recoloured, _page_resized */
/* global _page_shown, _page_start, Asyncify, HEAP32, HEAPF64, UTF8ToString */
'use strict';

const page = {
  elements: {},
  last: 0, // number given
  ratio: 1, // pixels of the screen for each of the page
  ground: '', // the window's colour
  ruler: null,
  held: null, // the picture box on which a button went down that is still held
  began: null, // the one on which the last press or touch began; null: elsewhere
  pressTime: 0,
  wakeUp: null,
  // In the order of the program's.
  keys: ['ArrowLeft', 'ArrowUp', 'ArrowRight', 'ArrowDown', 'Home', 'PageUp', 'End', 'PageDown', ' ', 'f',
    'ContextMenu', 'F10', 'Enter', 'Escape', 'F1'],
  pointerEvents: ['pointerdown', 'pointermove', 'pointerup', 'pointercancel'], // likewise

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
    const key = page.keys.indexOf(name);
    const letter = event.altKey && !event.ctrlKey && /^Key.$/.test(event.code) && event.code.charCodeAt(3);
    const unknown = letter ? !event.repeat && _page_accessKey(letter) : key < 0
      || _page_key(document.activeElement.number ?? 0, key, page.shiftKeys(event), event.repeat);
    unknown || event.preventDefault();
  },
  // The document hears of a held button whatever has come up meanwhile, and beyond its edges.
  pointer(event) {
    const {type, pointerId, pointerType, button, buttons} = event;
    const touches = pointerType === 'touch';
    const box = !touches && page.held || event.target.closest?.('.surface');
    if (type === 'pointerdown') {
      page.began = box;
      box?.focus({preventScroll: true});
      page.held = touches ? page.held : box;
    }
    if (!buttons) {
      page.held = null;
    }
    if (!box?.isConnected) {
      return;
    }
    if (type !== 'pointermove') {
      clearTimeout(page.pressTime);
      box.corner = null;
    }
    if (type === 'pointerdown' && touches) {
      page.pressTime = setTimeout(_page_longPress, 600, box.number);
    }
    const {left, top} = box.corner ??= box.getBoundingClientRect(); // too slow for each move
    _page_pointer(box.number, page.pointerEvents.indexOf(type), touches, pointerId, button, buttons,
      page.shiftKeys(event) & 7, (event.clientX - left) * page.ratio, (event.clientY - top) * page.ratio);
  },
  listen() {
    const on = (types, listener) => types.forEach((type) => document.addEventListener(type, listener, true));
    on(['keydown'], page.key);
    on(['keydown'], ({key}) => /^(Tab|Arrow)/.test(key) && document.body.classList.add('keys'));
    on(['pointerdown'], () => document.body.classList.remove('keys'));
    on(page.pointerEvents, page.pointer);
    on(['contextmenu', 'dragstart'], (event) => event.preventDefault());
    // What is no control takes no focus.
    on(['mousedown'], (event) => event.target.closest?.('button, label, input, a') ?? event.preventDefault());
    // A tap on the table is no click on a box that has come up under it.
    on(['click', 'input'], ({target, detail}) => {
      const element = !(detail && page.began) && target.closest?.('button, input');
      page.began = null;
      element && _page_input(element.number, element.valueAsNumber || 0);
    });
    on(['cancel', 'close'], (event) => {
      event.preventDefault();
      _page_key(0, page.keys.indexOf('Escape'), 0, false);
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
    let shown = '';
    const resized = ({width, height}, told) => {
      // On fewer pixels than the smallest scale needs, what is shown is shrunk.
      const shrunk = Math.max(1, 480 / (width * devicePixelRatio), 336 / (height * devicePixelRatio));
      page.ratio = devicePixelRatio * shrunk;
      const size = [exact(told?.inlineSize, width * page.ratio), exact(told?.blockSize, height * page.ratio)];
      if (shown !== (shown = `${size} ${page.ratio}`)) {
        _page_resized(...size);
      }
    };
    resized(main.getBoundingClientRect());
    const observer = new ResizeObserver(([entry]) => resized(entry.contentRect, entry.devicePixelContentBoxSize?.[0]));
    const tells = 'devicePixelContentBoxSize' in ResizeObserverEntry.prototype;
    const observe = () => { // anew at another zoom, and on another screen
      observer.disconnect();
      observer.observe(main, {box: tells ? 'device-pixel-content-box' : 'content-box'});
      matchMedia(`(resolution: ${devicePixelRatio}dppx)`).addEventListener('change', observe, {once: true});
    };
    observe();
    (window.requestIdleCallback ?? setTimeout)(() => navigator.serviceWorker?.register('offline.js').catch(() => {}));
  },

  // Elements.

  add(parent, name) {
    const {content} = document.getElementById(UTF8ToString(name)).cloneNode(true);
    const [first] = [...content.querySelectorAll('*')].map(page.number);
    page.elements[parent].append(content);
    return first;
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
    const element = page.elements[number];
    const {style} = element;
    element.corner = null;
    [style.left, style.top, style.width, style.height] = [left, top, width, height].map(page.css);
  },
  // The ampersand marks the access key.
  caption(number, text) {
    const element = page.elements[number];
    const caption = UTF8ToString(text).replaceAll('\r', '');
    if (element.caption === caption) {
      return; // a live region would say it again
    }
    element.caption = caption;
    const [before, after] = caption.split('&');
    const mark = document.createElement('u');
    mark.textContent = after?.[0];
    element.replaceChildren(before, ...after ? [mark, after.slice(1)] : []);
  },
  font(number, pixels, bold, stretch) {
    const {style} = page.elements[number];
    style.fontWeight = bold ? 'bold' : '';
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
    if (element.showModal) {
      element.showModal();
    } else {
      document.title = element.ariaLabel;
    }
    element.querySelector('.surface[tabindex], button').focus();
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
    const n = HEAPF64;
    let at = transform >> 3;
    context.setTransform(n[at], n[at + 1], n[at + 2], n[at + 3], n[at + 4], n[at + 5]);
    context.beginPath();
    for (at = steps >> 3; count > 0; --count, at += 7) {
      switch (HEAP32[2 * at]) {
        case 0: context.moveTo(n[at + 1], n[at + 2]); break;
        case 1: context.lineTo(n[at + 1], n[at + 2]); break;
        case 2: context.bezierCurveTo(n[at + 3], n[at + 4], n[at + 5], n[at + 6], n[at + 1], n[at + 2]); break;
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
    if (!mirrored && !upsideDown) {
      context.drawImage(page.elements[from], left, top, width, height, x, y, width, height);
      return;
    }
    context.setTransform(mirrored ? -1 : 1, 0, 0, upsideDown ? -1 : 1, x + (mirrored ? width : 0),
      y + (upsideDown ? height : 0));
    context.drawImage(page.elements[from], left, top, width, height, 0, 0, width, height);
    context.resetTransform();
  },
};

globalThis.Module = {onRuntimeInitialized: () => _page_start()};
