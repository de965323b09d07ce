"""Painting helpers shared by the theme pictures: noise, blur, light and the final development.

Pictures are float arrays of linear light, height x width x 3, painted at SCALE times the published
size and reduced at the end.
"""
import numpy as np
from PIL import Image, ImageDraw

WIDTH, HEIGHT, SCALE = 2400, 300, 2
W, H = WIDTH * SCALE, HEIGHT * SCALE

# Coordinates of every pixel in published pixels.
X, Y = np.meshgrid((np.arange(W) + 0.5) / SCALE, (np.arange(H) + 0.5) / SCALE)


def smooth(low, high, value):
    """Hermite step from 0 at low to 1 at high (low may exceed high)."""
    t = np.clip((value - low) / (high - low), 0, 1)
    return t * t * (3 - 2 * t)


def rgb(*parts):
    return np.array(parts, float)


def tint(mask, colour):
    return mask[..., None] * colour


def mix(under, over, mask):
    return under + (over - under) * mask[..., None]


def noise(rng, cell_x, cell_y, octaves=5, gain=0.5):
    """Fractal value noise, about 0..1; the cell sizes are in published pixels."""
    total, weight, sum_of_weights = np.zeros((H, W)), 1.0, 0.0
    for octave in range(octaves):
        columns = max(2, int(WIDTH / cell_x * 2**octave) + 3)
        rows = max(2, int(HEIGHT / cell_y * 2**octave) + 3)
        grid = Image.fromarray(rng.random((rows, columns)).astype(np.float32))
        total += weight * np.asarray(grid.resize((W, H), Image.BICUBIC))
        sum_of_weights += weight
        weight *= gain
    return total / sum_of_weights


def ridge_line(rng, cell, octaves=7, gain=0.52):
    """A jagged profile over the width, about 0..1, made of folded noise."""
    total, weight, sum_of_weights = np.zeros(W), 1.0, 0.0
    for octave in range(octaves):
        count = int(WIDTH / cell * 2**octave) + 3
        knots = np.sort(rng.random(count)) * WIDTH
        knots = np.linspace(0, WIDTH, count) * 0.6 + knots * 0.4
        total += weight * np.interp(X[0], knots, rng.random(count))
        sum_of_weights += weight
        weight *= gain
    return total / sum_of_weights


def blur(image, radius):
    """Gaussian blur; the radius is in published pixels, edges are mirrored."""
    sigma = radius * SCALE
    pad = min(int(3 * sigma) + 1, H - 1)
    spread = ((pad, pad), (pad, pad)) + ((0, 0),) * (image.ndim - 2)
    padded = np.pad(image, spread, mode="reflect")
    for axis in (0, 1):
        size = padded.shape[axis]
        gauss = np.exp(-2 * (np.pi * np.fft.rfftfreq(size) * sigma) ** 2)
        shape = [1] * padded.ndim
        shape[axis] = -1
        padded = np.fft.irfft(np.fft.rfft(padded, axis=axis) * gauss.reshape(shape), size, axis)
    return padded[pad:pad + H, pad:pad + W]


def polygon_mask(polygons):
    """Coverage 0..1 of polygons given in published pixels."""
    image = Image.new("L", (W, H))
    draw = ImageDraw.Draw(image)
    for points in polygons:
        draw.polygon([(x * SCALE, y * SCALE) for x, y in points], fill=255)
    return np.asarray(image) / 255.0


def sparks(rng, count, area, size, heat, drift=(0.5, -1.0)):
    """A brightness map of short glowing streaks: area = (x0, y0, x1, y1), size in published pixels."""
    light = np.zeros((H, W))
    for _ in range(count):
        x = rng.uniform(area[0], area[2])
        y = area[3] - (area[3] - area[1]) * rng.random() ** 1.4
        radius = size * (0.35 + rng.random() ** 3)
        length = radius * rng.uniform(1.0, 3.2)
        angle = np.arctan2(drift[1], drift[0]) + rng.normal(0, 0.5)
        reach = int((length + radius) * 3 * SCALE)
        cx, cy = int(x * SCALE), int(y * SCALE)
        top, left = max(cy - reach, 0), max(cx - reach, 0)
        part = np.s_[top:max(cy + reach, 0), left:max(cx + reach, 0)]
        dx, dy = X[part] - x, Y[part] - y
        along = (dx * np.cos(angle) + dy * np.sin(angle)) / length
        across = (dy * np.cos(angle) - dx * np.sin(angle)) / radius
        light[part] += heat * rng.uniform(0.2, 1) * np.exp(-(along**2 + across**2))
    return light


def develop(light, rng, grain):
    """Tone-maps linear light, reduces it to the published size and adds film grain."""
    shown = 1 - np.exp(-np.clip(light, 0, None))
    shown = shown.reshape(HEIGHT, SCALE, WIDTH, SCALE, 3).mean(axis=(1, 3)) ** (1 / 1.8)
    shown += rng.normal(0, grain, (HEIGHT, WIDTH, 1)) * (0.35 + shown.mean(axis=2, keepdims=True))
    return Image.fromarray((np.clip(shown, 0, 1) * 255 + 0.5).astype(np.uint8))
