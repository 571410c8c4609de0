// The canvas: the game's frame, enlarged by a whole number where the page shows it at a broken scale, so that it is
// only ever smoothed down from there.
const largestEnlargement = 8; // more than any screen needs

export class Screen {
  constructor(canvas) {
    this.canvas = canvas;
    this.frame = document.createElement('canvas'); // the frame as the game painted it
    this.frameContext = this.frame.getContext('2d', { alpha: false });
    this.context = canvas.getContext('2d', { alpha: false });
    this.enlargement = 1;
    this.size(canvas.width, canvas.height);
  }

  size(width, height) {
    this.frame.width = width;
    this.frame.height = height;
    this.enlarge(this.enlargement);
  }

  enlarge(times) {
    this.enlargement = Math.min(times, largestEnlargement);
    this.canvas.width = this.frame.width * this.enlargement;
    this.canvas.height = this.frame.height * this.enlargement;
    this.copyRows(0, this.frame.height);
  }

  paint(image, firstRow) {
    this.frameContext.putImageData(image, 0, firstRow);
    this.copyRows(firstRow, image.height);
  }

  copyRows(first, count) {
    const { width } = this.frame;
    const times = this.enlargement;
    this.context.imageSmoothingEnabled = false;
    this.context.drawImage(this.frame, 0, first, width, count, 0, first * times, width * times, count * times);
  }

  // The pixel of the frame at a place of the window, or none outside.
  pixelAt(clientX, clientY) {
    const area = this.canvas.getBoundingClientRect();
    const x = Math.floor((clientX - area.left) * this.frame.width / area.width);
    const y = Math.floor((clientY - area.top) * this.frame.height / area.height);
    const isInside = x >= 0 && y >= 0 && x < this.frame.width && y < this.frame.height;
    return isInside ? { x, y } : null;
  }
}
