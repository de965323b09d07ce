"""The word VYKLauncher, drawn for this program: chiselled outlines, no font involved."""
import numpy as np

from paint import H, SCALE, W, X, Y, blur, mix, noise, rgb, smooth, tint

# Outlines in letter units: y runs down, capitals are 100 high, the small capitals 70.
# Each letter is (advance, [outer contour, hole...]).
LETTERS = [
    (104, [[(0, 0), (30, 0), (49, 64), (68, 0), (98, 0), (61, 96), (49, 107), (37, 96)]]),  # V
    (95, [[(0, 0), (31, 0), (46, 33), (61, 0), (92, 0), (59, 63), (59, 90), (49, 100),
           (33, 100), (33, 63)]]),  # Y
    (97, [[(0, 0), (26, 0), (26, 39), (54, 0), (87, 0), (54, 47), (91, 100), (59, 100), (37, 68),
           (26, 82), (26, 91), (17, 100), (0, 100)]]),  # K
    (31, [[(0, 0), (26, 0), (26, 80), (496, 80), (470, 88), (142, 91), (131, 100), (0, 100)]]),  # L
    (71, [[(23, 0), (45, 0), (68, 70), (47, 70), (43, 57), (25, 57), (21, 70), (0, 70)],
          [(34, 18), (40, 42), (28, 42)]]),  # A
    (66, [[(0, 0), (19, 0), (19, 53), (39, 53), (39, 0), (58, 0), (58, 60), (48, 70), (10, 70),
           (0, 60)]]),  # U
    (68, [[(0, 0), (20, 0), (41, 37), (41, 0), (60, 0), (60, 70), (40, 70), (19, 33), (19, 70),
           (0, 70)]]),  # N
    (60, [[(10, 0), (54, 0), (46, 17), (19, 17), (19, 53), (46, 53), (54, 70), (10, 70), (0, 60),
           (0, 10)]]),  # C
    (66, [[(0, 0), (19, 0), (19, 26), (39, 26), (39, 0), (58, 0), (58, 70), (39, 70), (39, 43),
           (19, 43), (19, 70), (0, 70)]]),  # H
    (58, [[(0, 0), (50, 0), (42, 16), (19, 16), (19, 27), (40, 27), (40, 42), (19, 42), (19, 54),
           (42, 54), (50, 70), (0, 70)]]),  # E
    (60, [[(0, 0), (49, 0), (58, 9), (58, 35), (49, 44), (60, 70), (39, 70), (29, 46), (19, 46),
           (19, 70), (0, 70)],
          [(19, 16), (39, 16), (39, 31), (19, 31)]]),  # R
]
ACCENTED = 3  # the first letters, VYK, take the accent colour
BEVEL = 7.5  # width of the chiselled edge in letter units
LIGHT = rgb(-0.45, -0.78, 0.44)  # direction towards the light


def inside(contours, x, y):
    """Even-odd test of the points against closed contours."""
    result = np.zeros(x.shape, bool)
    for points in contours:
        for (x0, y0), (x1, y1) in zip(points, points[1:] + points[:1]):
            if y0 != y1:
                crosses = (y0 > y) != (y1 > y)
                result ^= crosses & (x < (x1 - x0) * (y - y0) / (y1 - y0) + x0)
    return result


def nearest_edge(contours, x, y):
    """Distance to the outline, and the unit vector from each point towards it."""
    best = np.full(x.shape, np.inf)
    toward_x, toward_y = np.zeros(x.shape), np.zeros(x.shape)
    for points in contours:
        for (x0, y0), (x1, y1) in zip(points, points[1:] + points[:1]):
            ex, ey = x1 - x0, y1 - y0
            t = np.clip(((x - x0) * ex + (y - y0) * ey) / (ex * ex + ey * ey), 0, 1)
            dx, dy = x0 + t * ex - x, y0 + t * ey - y
            distance = np.hypot(dx, dy)
            closer = distance < best
            best[closer] = distance[closer]
            safe = np.maximum(distance, 1e-6)
            toward_x[closer], toward_y[closer] = (dx / safe)[closer], (dy / safe)[closer]
    return best, toward_x, toward_y


class Word:
    """Per-pixel maps of the word set at (left, top), with unit published pixels per letter unit."""

    def __init__(self, left, top, unit):
        self.mask, self.accent = np.zeros((H, W)), np.zeros((H, W))
        self.facet, self.flat = np.zeros((H, W)), np.zeros((H, W))
        self.edge = np.full((H, W), 1e3)
        self.height = (Y - top) / unit
        pen = left
        for index, (advance, contours) in enumerate(LETTERS):
            width = max(px for px, _ in contours[0])
            c0, c1 = int((pen - 4) * SCALE), int((pen + width * unit + 4) * SCALE)
            part = np.s_[:, c0:c1]
            x, y = (X[part] - pen) / unit, self.height[part]
            within = inside(contours, x, y)
            distance, tx, ty = nearest_edge(contours, x, y)
            shine = tx * LIGHT[0] + ty * LIGHT[1]
            self.mask[part] = np.maximum(self.mask[part], within)
            self.facet[part] = np.where(within, shine, self.facet[part])
            self.flat[part] = np.where(within, smooth(BEVEL - 0.6, BEVEL + 0.6, distance),
                                       self.flat[part])
            self.edge[part] = np.where(within, distance, self.edge[part])
            if index < ACCENTED:
                self.accent[part] = np.maximum(self.accent[part], within)
            pen += advance * unit
        self.right = pen

    def paint(self, light, rng, style):
        """Lays shadow, halo and the chiselled letters over the picture."""
        shadow = np.clip(1.5 * blur(self.mask, 9), 0, 1) * 0.8
        light = light * (1 - 0.8 * shadow[..., None])
        light += tint(blur(self.accent, 16) * 0.5 + blur(self.accent, 3.5) * 0.55, style["halo"])
        light += tint(blur(self.mask - self.accent, 14) * 0.30, style["plain_halo"])

        depth = np.clip(self.height / 100, 0, 1)
        scuff = noise(rng, 26, 7, 5, 0.62)
        scratches = smooth(0.60, 0.68, noise(rng, 60, 3, 3, 0.6))
        wear = 0.78 + 0.5 * (scuff - 0.5) * 2 - 0.16 * scratches

        accent = tint(1 - depth, style["top"]) + tint(depth, style["bottom"])
        plain = tint(1 - depth, style["plain_top"]) + tint(depth, style["plain_bottom"])
        face = mix(plain, accent, self.accent)
        bevel = face * (0.55 + np.clip(self.facet, -0.385, 1) * 1.35)[..., None] * 1.25
        glint = mix(np.broadcast_to(style["plain_glint"], light.shape), style["glint"], self.accent)
        bevel += glint * np.clip(self.facet - 0.45, 0, 1)[..., None]
        body = mix(bevel, face * wear[..., None], self.flat)
        rim = smooth(1.1, 0.3, self.edge) * np.clip(0.3 + self.facet, 0, 1)
        body += glint * 0.8 * rim[..., None]
        return mix(light, body, self.mask)
