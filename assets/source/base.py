"""The cold theme: a blue-green corridor of a research base, traced analytically."""
import numpy as np

from paint import H, W, X, Y, blur, mix, noise, rgb, smooth, sparks, tint

CENTRE = (1500.0, 146.0)  # vanishing point
FOCAL = 205.0
SPACING, THICKNESS = 1.9, 0.34  # bulkhead frames along the corridor, in metres
DOOR = 24.0  # distance of the far door

TEAL = rgb(0.04, 0.85, 0.62)
CYAN = rgb(0.14, 0.62, 1.0)
AMBER = rgb(1.0, 0.36, 0.05)
ALARM = rgb(1.0, 0.03, 0.02)
STEEL = rgb(0.30, 0.42, 0.46)

# The cross-section: outward normals and distances of its eight walls, in metres.
HALF_WIDTH, HALF_HEIGHT, CORNER = 2.3, 1.25, 2.05
DIAGONAL = 2**-0.5
WALLS = [(1, 0, HALF_WIDTH), (-1, 0, HALF_WIDTH), (0, 1, HALF_HEIGHT), (0, -1, HALF_HEIGHT)]
WALLS += [(sx * DIAGONAL, sy * DIAGONAL, CORNER) for sx in (1, -1) for sy in (1, -1)]
FLOOR, CEILING = 2, 3

STYLE = {
    "halo": rgb(0.45, 0.02, 0.01),
    "plain_halo": rgb(0.02, 0.35, 0.36),
    "top": rgb(0.50, 0.001, 0.001),
    "bottom": rgb(1.55, 0.030, 0.006),
    "plain_top": rgb(0.80, 0.98, 1.0),
    "plain_bottom": rgb(0.22, 0.42, 0.46),
    "glint": rgb(1.0, 0.24, 0.12),
    "plain_glint": rgb(0.75, 0.98, 1.0),
}


class Hit:
    """What each pixel sees: position, normal, wall number, and whether it is a bulkhead frame."""

    def __init__(self):
        u, v = (X - CENTRE[0]) / FOCAL, (Y - CENTRE[1]) / FOCAL
        outward = np.full((H, W), 1e-6)
        self.wall = np.zeros((H, W), int)
        self.nx, self.ny, self.nz = np.zeros((H, W)), np.zeros((H, W)), np.zeros((H, W))
        for index, (nx, ny, distance) in enumerate(WALLS):
            towards = (nx * u + ny * v) / distance
            closer = towards > outward
            outward[closer] = towards[closer]
            self.wall[closer], self.nx[closer], self.ny[closer] = index, -nx, -ny
        self.z = 1 / outward
        self.frame, self.face = np.zeros((H, W), bool), np.zeros((H, W), bool)
        inner_z = self.z * 0.88  # where the ray meets the narrower inside of the frames
        first = np.arange(1, int(DOOR / SPACING) + 1) * SPACING
        for start in first[::-1]:
            face = (inner_z <= start) & (start < self.z)
            inside = (inner_z > start) & (inner_z < start + THICKNESS)
            hit = face | inside
            self.z = np.where(face, start, np.where(inside, inner_z, self.z))
            self.frame |= hit
            self.face = np.where(hit, face, self.face)
        self.door = self.z >= DOOR
        self.z = np.minimum(self.z, DOOR)
        flat = self.face | self.door
        self.nx[flat], self.ny[flat], self.nz[flat] = 0, 0, -1
        self.x, self.y = u * self.z, v * self.z
        self.along = self.z % SPACING
        self.bay = (self.z // SPACING).astype(int)


def line(value, width):
    """A soft dark or bright line where value passes 0."""
    return np.exp(-(value / width) ** 2)


def surface(hit, rng):
    """Albedo of everything the corridor is made of."""
    grime = noise(rng, 90, 40, 6, 0.6)
    streaks = noise(rng, 14, 160, 4, 0.6)
    albedo = tint(0.35 + 0.55 * grime + 0.35 * (streaks - 0.5), STEEL)
    mid = THICKNESS + (SPACING - THICKNESS) / 2
    side, floor = (hit.wall < 2) & ~hit.frame, (hit.wall == FLOOR) & ~hit.frame
    seams = np.maximum(line(hit.along - mid, 0.018), line(np.abs(hit.y) - 0.42, 0.016)) * side
    seams = np.maximum(seams, line(hit.y + 0.10, 0.012) * side)
    panel = side & (np.abs(hit.along - mid) > 0.12) & (np.abs(hit.y + 0.10) > 0.05) & (np.abs(hit.y) < 0.36)
    albedo *= (1 - 0.35 * panel - 0.75 * seams)[..., None]
    slots = side & (np.abs(hit.y - 0.62) < 0.13) & (np.sin(hit.along * 60) > 0)
    albedo *= (1 - 0.7 * slots)[..., None]
    grate = floor & ((np.sin(hit.z * 34) > 0.3) | (np.sin(hit.x * 22) > 0.8)) & (np.abs(hit.x) < 0.9)
    albedo *= (1 - 0.6 * grate)[..., None]
    albedo = mix(albedo, albedo * 0.38, hit.frame * 1.0)
    stripes = hit.face & (np.abs(hit.y - 0.75) < 0.22) & (np.sin((hit.y + hit.x) * 40) > 0)
    return mix(albedo, AMBER * 0.5, stripes * 0.45)


def lamps(hit):
    """Emitted light: ceiling tubes, wall strips, small status lights and the far door."""
    mid = THICKNESS + (SPACING - THICKNESS) / 2
    in_bay = smooth(0.62, 0.52, np.abs(hit.along - mid)) * ~hit.frame
    tube = in_bay * (hit.wall == CEILING) * smooth(0.30, 0.25, np.abs(hit.x))
    strip = (hit.wall >= 4) * in_bay * (hit.y < 0) * smooth(0.06, 0.04, np.abs(hit.y + 0.88))
    edge = line(np.abs(hit.y) - 1.10, 0.022) * (hit.wall >= 4) * (hit.y > 0) * ~hit.frame
    light = tint(tube * 4.0, CYAN) + tint(strip * 3.2, TEAL) + tint(edge * 1.5, TEAL)
    status = hit.face & (np.abs(np.abs(hit.x) - HALF_WIDTH * 0.94) < 0.05) & (np.abs(hit.y + 0.2) < 0.09)
    light += tint(status * (hit.bay % 3 == 0) * 3.0, ALARM) + tint(status * (hit.bay % 3 != 0) * 1.6, TEAL)
    seam = line(hit.x, 0.07) + line(hit.y + 0.5, 0.04)
    light += tint(hit.door * (1.1 + 2.5 * seam), CYAN)
    return light


def lit(hit, albedo):
    """Diffuse and glossy light of the ceiling tubes, one lamp per bay."""
    result = albedo * 0.05 * TEAL
    for bay in range(0, int(DOOR / SPACING)):
        lz = (bay + 0.6) * SPACING
        for lx, ly, colour, power in ((0, -1.1, CYAN, 0.9), (-1.7, -0.8, TEAL, 0.30), (1.7, -0.8, TEAL, 0.30)):
            dx, dy, dz = lx - hit.x, ly - hit.y, lz - hit.z
            square = dx * dx + dy * dy + dz * dz + 0.06
            length = np.sqrt(square)
            facing = np.clip((dx * hit.nx + dy * hit.ny + dz * hit.nz) / length, 0, 1)
            result += albedo * tint(power * facing / square, colour)
    return result


def paint(rng):
    hit = Hit()
    light = lit(hit, surface(hit, rng))
    glow = lamps(hit)
    light += glow

    # A wet floor: the upper half mirrored about the horizon, broken up by noise.
    mirror = np.clip((2 * CENTRE[1] - Y) / Y.max() * (H - 1), 0, H - 1).astype(int)
    ripple = smooth(0.40, 0.70, noise(rng, 120, 14, 5)) * (hit.wall == FLOOR) * ~hit.frame
    light += blur(glow, 2.5)[mirror, np.arange(W)[None, :]] * (0.30 * ripple)[..., None]

    fog = 1 - np.exp(-hit.z / 15)
    haze = TEAL * 0.10 + CYAN * 0.15
    light = mix(light, np.broadcast_to(haze, light.shape), fog * 0.75)
    light += blur(glow, 5) * 0.50 + blur(glow, 26) * 0.42
    distance = np.hypot((X - CENTRE[0]) * 0.6, Y - CENTRE[1])
    light += tint(np.exp(-distance / 34) * 0.9 + np.exp(-distance / 170) * 0.10, TEAL * 0.5 + CYAN * 0.5)
    mist = smooth(0.45, 0.80, noise(rng, 300, 50, 5)) * smooth(110, 260, Y)
    light += tint(mist * np.exp(-np.abs(X - CENTRE[0]) / 600) * 0.22, TEAL)
    light *= (1 - 0.62 * smooth(1330, 900, X))[..., None]
    light *= (1 - 0.86 * smooth(1620, 1940, X))[..., None]
    return light


def foreground(light, rng):
    """Dust in the lamplight, drawn over the lettering too."""
    dust = sparks(rng, 160, (900, 20, 1950, 290), 0.9, 0.9, drift=(1, 0.2))
    soft = blur(sparks(rng, 16, (200, 20, 1800, 290), 4.0, 0.6), 2.5)
    light = light + tint(dust, CYAN) + tint(soft * 0.4, TEAL)
    edge = smooth(0, 60, Y) * smooth(300, 240, Y)
    return light * (0.5 + 0.5 * edge)[..., None] * (0.4 + 0.6 * smooth(-60, 160, X))[..., None]
