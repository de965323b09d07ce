"""The default theme: a black sun over jagged mountains, a fortress and a molten plain."""
import numpy as np

from paint import (H, W, X, Y, blur, mix, noise, polygon_mask, rgb, ridge_line, smooth, sparks, tint)

SUN = (1490.0, 128.0, 74.0)  # centre and radius
FIRE = rgb(1.0, 0.042, 0.010)
EMBER = rgb(1.0, 0.150, 0.022)

# Mountain layers, far to near: base line, height, cell, colour of the rock, haze over it.
LAYERS = [
    (206, 112, 230, rgb(0.150, 0.010, 0.006), 0.60),
    (218, 92, 190, rgb(0.060, 0.004, 0.003), 0.36),
    (238, 78, 150, rgb(0.018, 0.002, 0.002), 0.15),
    (292, 84, 240, rgb(0.004, 0.001, 0.001), 0.03),
]

STYLE = {
    "halo": rgb(0.75, 0.02, 0.005),
    "plain_halo": rgb(0.5, 0.05, 0.02),
    "top": rgb(0.50, 0.001, 0.001),
    "bottom": rgb(1.55, 0.030, 0.004),
    "plain_top": rgb(0.95, 0.86, 0.78),
    "plain_bottom": rgb(0.46, 0.33, 0.28),
    "glint": rgb(1.0, 0.22, 0.08),
    "plain_glint": rgb(1.0, 0.80, 0.66),
}


def nearness(reach):
    """How strongly the sun lights each column, 0..1."""
    return np.exp(-(((X - SUN[0]) / reach) ** 2))


def sky(rng):
    warp = noise(rng, 300, 90, 4) - 0.5
    column = np.clip(((X + 260 * warp) / X.max() * (W - 1)).astype(int), 0, W - 1)
    row = np.clip((Y + 70 * warp) / Y.max() * (H - 1), 0, H - 1).astype(int)
    clouds = smooth(0.36, 0.68, noise(rng, 260, 46, 6, 0.55)[row, column])
    wisps = smooth(0.45, 0.75, noise(rng, 110, 16, 5, 0.55)[row, column])

    horizon = smooth(-20, 235, Y)
    light = tint(0.012 + 0.10 * horizon**2, FIRE)
    light += tint(horizon**3 * nearness(760) * 0.95, FIRE)
    light += tint(horizon**4 * nearness(330) * 1.2, EMBER)
    light *= (0.35 + 1.15 * clouds)[..., None]
    light += tint(wisps * horizon * nearness(600) * 0.22, EMBER)
    return light


def black_sun(light, rng):
    dx, dy = X - SUN[0], Y - SUN[1]
    distance, angle = np.hypot(dx, dy), np.arctan2(dy, dx)
    rays = sum(np.sin(angle * k + rng.uniform(0, 6.3)) / k**0.6 for k in (3, 7, 11, 19, 31, 47))
    gap = np.clip(distance - SUN[2], 0, None)
    corona = np.exp(-gap / (17 + 4.5 * rays)) * 2.6 + np.exp(-gap / 62) * 0.75
    light = light + tint(corona, EMBER) + tint(np.exp(-gap / 190) * 0.32, FIRE)
    light += tint(np.exp(-gap / 2.2) * 3.0, rgb(1.0, 0.45, 0.16))
    disc = smooth(SUN[2] + 0.6, SUN[2] - 0.6, distance)
    inner = tint(np.exp((distance - SUN[2]) / 9) * 0.5, EMBER)
    inner += tint(0.015 + 0.75 * smooth(SUN[1] - 60, SUN[1] + 78, Y) ** 1.5, FIRE)
    return mix(light, inner, disc)


def tower(x, foot, width, height, spire):
    """A tapering tower between two horns, with a needle of the given height on top."""
    half, top = width / 2, foot - height
    right = [(0.16, top - spire * 0.55), (0.40, top - 4), (0.62, top - 1), (0.92, top - 4),
             (1.30, top - 16), (1.34, top - 2), (1.12, top + 9), (0.74, top + 17), (1.25, foot)]
    left = [(-side, y) for side, y in reversed(right)]
    return [(x + side * half, y) for side, y in left + [(0, top - spire)] + right]


def fortress():
    """Silhouette and lit windows of the fortress standing before the sun."""
    x, foot = SUN[0] + 14, 216
    walls = [tower(x, foot, 30, 84, 46), tower(x - 34, foot, 18, 60, 28), tower(x + 36, foot, 20, 66, 32),
             tower(x - 66, foot, 14, 38, 22), tower(x + 72, foot, 14, 44, 24),
             tower(x + 112, foot, 10, 26, 17), tower(x - 104, foot, 10, 22, 15)]
    walls.append([(x - 112, foot + 20), (x - 108, 198), (x - 66, 194), (x - 60, 186), (x + 62, 186),
                  (x + 70, 192), (x + 116, 197), (x + 122, foot + 20)])
    walls += [[(x + s * 62, 176), (x + s * 30, 160), (x + s * 30, 168), (x + s * 62, 184)] for s in (-1, 1)]
    windows = []
    for wx, wy, wh in [(0, 150, 12), (-34, 172, 8), (36, 167, 8), (72, 186, 5), (-66, 189, 5)]:
        windows.append([(x + wx - 1.1, wy), (x + wx, wy - 3), (x + wx + 1.1, wy), (x + wx + 1.1, wy + wh),
                        (x + wx - 1.1, wy + wh)])
    windows.append([(x - 7, 208), (x - 7, 196), (x, 189), (x + 7, 196), (x + 7, 208)])
    return polygon_mask(walls), polygon_mask(windows)


def mountains(light, rng):
    for index, (base, height, cell, colour, haze) in enumerate(LAYERS):
        ridge = 0.55 * ridge_line(rng, cell) + 0.45 * ridge_line(rng, cell * 0.45, 6, 0.58)
        valley = 1 - 0.75 * np.exp(-(((X[0] - SUN[0]) / 210) ** 2))
        top = base - height * (ridge * 2.6 - 0.80) * valley
        below = Y - top
        rock = smooth(-0.4, 0.4, below)
        slope = np.gradient(top, X[0])
        facing = np.clip(-slope * np.sign(X[0] - SUN[0]) * 0.8 + 0.25, 0, 1)
        texture = noise(rng, 40, 18, 5, 0.6)
        body = tint(0.5 + texture, colour)
        body += tint(smooth(0, 110, below) * nearness(620) * haze * 0.55, FIRE)
        body += tint(smooth(0, 60, below) * haze * 0.07, FIRE)
        rim = np.exp(-np.clip(below, 0, None) / 2.0) * facing * nearness(560)
        body += tint(rim * (0.9 - 0.17 * index), EMBER)
        light = mix(light, body, rock)
        if index == 1:
            walls, windows = fortress()
            light = mix(light, tint(0.5 + 0.5 * smooth(150, 225, Y), rgb(0.020, 0.002, 0.001)), walls)
            light += tint(windows * 2.2 + blur(windows, 3) * 1.4, EMBER)
    return light


def molten_plain(light, rng):
    """Glowing cracks that run towards the viewer at the foot of the picture."""
    depth = np.clip((Y - 206) / 94, 1e-3, 1)
    flow = noise(rng, 130, 20, 5, 0.55)
    crack = np.exp(-np.abs(flow - 0.5) / (0.006 + 0.016 * depth))
    reach = smooth(206, 232, Y) * (0.06 + nearness(520))
    glow = crack * reach
    return light + tint(glow * 1.3, EMBER) + tint(blur(glow, 6) * 1.6, FIRE)


def paint(rng):
    light = mountains(black_sun(sky(rng), rng), rng)
    light = molten_plain(light, rng)
    smoke = smooth(0.5, 0.8, noise(rng, 340, 60, 5)) * smooth(120, 240, Y)
    light += tint(smoke * nearness(700) * 0.14, FIRE)
    light += tint(blur(light[..., 0], 22) * 0.28, FIRE)
    light *= (1 - 0.55 * smooth(1250, 300, X) * smooth(60, 150, Y))[..., None]
    light *= (1 - 0.80 * smooth(1640, 1960, X))[..., None]
    return light


def foreground(light, rng):
    """Embers in the air, drawn over the lettering too."""
    near = sparks(rng, 130, (1050, 10, 1960, 290), 1.5, 2.6) + sparks(rng, 70, (0, 40, 1500, 300), 1.3, 1.5)
    soft = blur(sparks(rng, 14, (200, 40, 1800, 290), 4.5, 0.8), 2.5)
    light = light + tint(near, rgb(1.0, 0.34, 0.08)) + tint(blur(near, 4) * 0.9 + soft * 0.5, EMBER)
    edge = smooth(0, 70, Y) * smooth(300, 235, Y)
    return light * (0.45 + 0.55 * edge)[..., None] * (0.4 + 0.6 * smooth(-60, 160, X))[..., None]
