"""What is compared with what, and how many times the peer's cost ours may be. A row without a goal is told for what
it teaches."""

from typing import NamedTuple


class Row(NamedTuple):
    what: str
    peer: str
    goal: float | None
    ours: str  # names of measurements
    theirs: str | None  # without one the measurement itself is what counts
    unit: str = "×"


PUT, BLEND = "transparent put, 32 × 32", "blend put, 32 × 32"
REDRAW, TILES = "full play-screen redraw", "the tiles of that redraw alone"
START, MEMORY = "start-up to the mapped window", "resident memory"

ROWS = (
    Row(PUT, "row-wise memcpy", 1.6, "transparent", "transparent memcpy"),
    Row(PUT, "SDL colour key with run lengths", 1.0, "transparent", "transparent SDL RLE"),
    Row(PUT, "pixman OVER", 0.6, "transparent", "transparent pixman"),
    Row(BLEND, "row-wise memcpy", 5, "blend", "blend memcpy"),
    Row(BLEND, "SDL colour key and alpha", 0.1, "blend", "blend SDL"),
    Row(BLEND, "SDL colour key and alpha with run lengths", None, "blend", "blend SDL RLE"),
    Row(BLEND, "pixman OVER with a mask", 0.75, "blend", "blend pixman"),
    Row("clipped transparent puts, per pixel", "the unclipped ones", 1.3, "transparent clipped",
        "transparent unclipped"),
    Row("clipped blend puts, per pixel", "the unclipped ones", 1.3, "blend clipped", "blend unclipped"),
    Row(REDRAW, "memcpy of the frame", 10, "redraw", "frame memcpy"),
    Row(TILES, "pixman", 0.6, "redraw puts", "redraw pixman"),
    Row(TILES, "SDL_BlitSurface", 0.1, "redraw puts", "redraw SDL"),
    Row(TILES, "SDL_BlitSurface with run lengths", None, "redraw puts", "redraw SDL RLE"),
    *(Row(f"present after a move, {scale}x", "bare upscale and SDL_UpdateWindowSurface", 1.2, f"move present {scale}",
          f"move present {scale} bare") for scale in (1, 2, 3)),
    *(Row(f"present of a frame new in every pixel, {scale}x", "the same", None, f"whole present {scale}",
          f"whole present {scale} bare") for scale in (1, 2, 3)),
    Row("one autoplayer move, drawn", "memcpy of the frame", 3, "drawn move", "frame memcpy"),
    Row("whole games without a picture", "the same with every picture shown", 0.1, "silent games", "shown games"),
    Row("whole games without a picture", "the same with 60 pictures a second", None, "silent games", "drawn games"),
    Row("one assessment and choice", "memcpy of the frame", 0.15, "assessment and choice", "frame memcpy"),
    Row(f"{START}, processor time", "a minimal SDL2 program", 2, "start", "start minimal"),
    Row(f"{START}, time on the clock", "the same", 2, "start clock", "start clock minimal"),
    Row(MEMORY, "the same", 2, "memory", "memory minimal"),
    Row("idle for 10 s on every screen: processor time of the worst", "", 0.1, "idle", None, "%"),
    Row("idle: presents on all screens where nothing blinks", "", 0, "idle presents", None, ""),
    Row("idle: processor time of the X server, all screens together", "", 0.05, "idle server", None, "%"),
)


def figure(value, unit):
    return f"{value:.0f}" if not unit else f"{value:.3f} %" if unit == "%" else f"{value:.2f} ×"


def goal_text(row):
    return "" if row.goal is None else f"≤ {row.goal:g} {row.unit}".rstrip()


def table(measured):
    """The lines of the table, of those rows that were measured, and whether every goal is met."""
    lines = ["| What | Peer | Goal | Measured | Met |", "|---|---|---|---|---|"]
    all_met = True
    for row in ROWS:
        if row.ours not in measured or (row.theirs and row.theirs not in measured):
            continue
        value = measured[row.ours] / measured[row.theirs] if row.theirs else measured[row.ours]
        met = row.goal is None or value <= row.goal
        all_met = all_met and met
        verdict = "" if row.goal is None else "yes" if met else "no"
        lines.append(f"| {row.what} | {row.peer} | {goal_text(row)} | {figure(value, row.unit)} | {verdict} |")
    return lines, all_met
