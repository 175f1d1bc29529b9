"""usage: pmi_and_holes.py CAPTURE

Lists the dimensions, tolerances, datums and notes of a capture, and its holes. In an editor that knows cells (# %%)
run it piece by piece, or all of it as a script.
"""

# %% What crossed. The classes are those that `vrx schema` tells.
import sys
from collections.abc import Iterable, Iterator

import vrx_reader
from vrx_reader import Object

CAPTURE = sys.argv[1] if len(sys.argv) == 2 else "import.vrxcap"

capture = vrx_reader.Capture(CAPTURE, vrx_reader.find_schema())
structures = list(capture.objects("exc_product_structure"))
block_names = {block.id: block.name for structure in structures for block in structure.blocks}
parts = list(capture.objects("exc_block_mechanical_data"))
roots = list(capture.objects("exc_root_mechanical_data"))


# %% Tables and texts
def print_table(title: str, heads: tuple[str, ...], rows: Iterable[tuple[str, ...]]) -> None:
    # A text from elsewhere must not steer the terminal.
    lines = [heads, *(tuple("".join(c if c.isprintable() else "�" for c in cell) for cell in row) for row in rows)]
    if len(lines) == 1:
        return
    widths = [min(60, max(map(len, column))) for column in zip(*lines)]
    print(f"\n{title}: {len(lines) - 1}")
    for line in [heads, tuple("-" * width for width in widths), *lines[1:]]:
        print("  " + "  ".join(cell.ljust(width) for cell, width in zip(line, widths)).rstrip())


def number(value: float | None, places: float | None = None) -> str:
    if value is None:
        return ""
    text = f"{value:.{int(places) if places else 6}f}"
    text = text if places else text.rstrip("0").rstrip(".")
    return text.lstrip("-") if not text.strip("-0.") else text


def joined(texts: Iterable[str | None], separator: str = " ") -> str:
    return separator.join(text.replace("\n", " ") for text in texts if text)


def faces_of(entities: Iterable[Object]) -> set[tuple[int, int]]:
    paths = [entity.fsp for entity in entities if entity.fsp and entity.fsp.subent_id]
    return {(path.body_id, path.subent_id.index) for path in paths if path.subent_id.type == "f"}


def about(entities: Iterable[Object]) -> str:
    """Such as "faces 1, 2; edge 7"."""
    kinds = {"b": "body", "f": "face", "e": "edge", "v": "vertex"}
    found: dict[str, list[str]] = {}
    for entity in entities:
        part = entity.fsp.subent_id if entity.fsp else None
        if part is not None:
            found.setdefault(kinds.get(part.type, str(part.type)), []).append(str(part.index))
        elif entity.id:
            found.setdefault("", []).append(entity.id)
    return "; ".join(joined((kind, ", ".join(indices))) for kind, indices in found.items())


def block_text(block_id: int | None) -> str:
    return block_names.get(block_id) or ("the product" if not block_id else f"block {block_id}")


# %% Dimensions
ANGLES = {"degree": "°", "minute": "′", "second": "″", "radian": " rad", "grade": " gon"}


def dimension_text(one: Object) -> str:
    prefix, suffix, before, after, upper, lower, below = one.texts or ("",) * 7
    kind = str(one.sub_type)
    symbol = "⌀" if kind.startswith("diameter") else "R" if kind.startswith("radius") or kind == "fillet" else ""
    unit = ANGLES.get(one.unit, "")
    shown = one.value if one.fake_numerical_value is None else one.fake_numerical_value
    has_value = one.unit not in (None, "none") or one.value
    value = number(shown, one.value_precision) + unit if has_value else "–"
    if one.fake_alphanumerical_value is not None:
        value = one.fake_alphanumerical_value + unit
    value = joined((prefix or symbol, value, suffix))
    value = {"basic": f"[{value}]", "reference": f"({value})"}.get(one.main_type, value)
    least, most = one.numerical_tolerance or (0.0, 0.0)
    deviation = ""
    if one.main_type == "tolerance" and (least or most) and one.fake_alphanumerical_value is None:
        places = one.tolerance_precision_value
        if number(most, places) == number(-least, places):
            deviation = f"±{number(most, places)}{unit}"
        else:
            deviation = "/".join(("+" if each > 0 else "") + number(each, places) + unit for each in (most, least))
    shaft, hole = one.alphanumerical_tolerance or ("", "")
    return joined((before, upper, value, joined((hole, shaft), "/"), deviation, after, lower, below))


# %% Tolerances
TOLERANCES = {
    "form_straightness": "⏤",
    "form_flatness": "⏥",
    "form_circularity": "○",
    "form_cylindricity": "⌭",
    "form_profile_any_line": "⌒",
    "form_profile_any_surface": "⌓",
    "orientation_parallelism": "∥",
    "orientation_perpendicularity": "⟂",
    "orientation_angularity": "∠",
    "location_true_position": "⌖",
    "location_concentricity": "◎",
    "location_coaxiality": "◎",
    "location_symmetry": "⌯",
    "location_position_of_any_line": "⌒",
    "Location_position_of_a_surface": "⌓",
    "run_out_circular": "↗",
    "run_out_total": "⌰",
}
ZONES = {"diameter": "⌀", "radius": "R", "spherical": "S⌀", "square": "□"}
MODIFIERS = {
    "material_condition_maximum": "Ⓜ",
    "material_condition_least": "Ⓛ",
    "material_condition_regardless_of_feature_size": "Ⓢ",
    "tangent_plant_tangent": "Ⓣ",
    "free_state_free": "Ⓕ",
    "statistical_symbol": "⟨ST⟩",
    "common_zone": "CZ",
}


def datum_text(one: Object) -> str:
    """A compartment, such as "B Ⓜ" or the common datum "A-B"."""
    modified = one.modified_datums
    labels = [datum_labels.get(each.datum_id) for each in modified]
    if len(set(labels)) < 2 or None in labels:
        return joined((one.label, *(MODIFIERS.get(each.tolerance_modifier) for each in modified)))
    return "-".join(joined((label, MODIFIERS.get(each.tolerance_modifier))) for label, each in zip(labels, modified))


def frame_text(one: Object, modifiers: Iterable[str], has_value: bool) -> str:
    """A line of a feature control frame: its zone and its datums."""
    rates = [number(rate) for rate in one.rate_unit or () if rate]
    rate = "/" + "×".join(rates) if rates else ""
    value = ZONES.get(one.tolerance_value_type, "") + number(one.tolerance_value) + rate
    signs = [MODIFIERS.get(name) for name in modifiers]
    if "proj_tol_zone_length" in one and one.proj_tol_zone_length:
        signs.append("Ⓟ " + number(one.proj_tol_zone_length))
    if "shift_value" in one and one.shift_value:
        signs.append("Ⓤ " + number(one.shift_value + one.tolerance_value / 2))
    datums = map(datum_text, one.ref_frame.datum_refs if one.ref_frame else ())
    return joined((value if has_value else "–", *signs, *datums))


def tolerance_text(one: Object) -> str:
    symbol = TOLERANCES.get(one.tolerance_type, str(one.tolerance_type))
    # The translator of examples/cad_import adds a unit, which is empty where the file tells no value.
    has_value = "unit" not in one or one["unit"] != ""
    text = joined((one.note, symbol, frame_text(one, one.zone_modifiers or (), has_value)))
    if second := one.composite_data:
        text += f" / {symbol} {frame_text(second, [second.zone_modifiers], has_value)}"
    # 2 is how the same translator tells "all over".
    return text + (" all over" if one.all_around == 2 else " all around" if one.all_around else "")


def target_text(one: Object) -> str:
    return joined((one.label, ("⌀" if one.has_diameter else "") + (one.upper_text or ""), str(one.target_type)))


# %% All annotations. Their ids do not cross: saved views name them by place, where the translator does so.
LISTS = {
    "dimensions": ("Dimensions", dimension_text),
    "GDTs": ("Tolerances", tolerance_text),
    "datum": ("Datums", lambda one: one.label or ""),
    "datum_targets": ("Datum targets", target_text),
    "roughness": ("Roughness", lambda one: joined(one.fields)),
    "notes": ("Notes", lambda one: joined(text.label for text in one.texts)),
}


def all_annotations(key: str) -> Iterator[tuple[Object, str, Object]]:
    """Each with its set and its place."""
    for annotations in (each for data in (*roots, *parts) for each in data.pmi_data):
        for i, view in enumerate(annotations.annotation_views or annotations.views):
            for k, one in enumerate(view[key]):
                yield annotations, f"{annotations.block_id}/{i}/{key}/{k}", one


def annotation_rows(key: str) -> Iterator[tuple[str, ...]]:
    for annotations, place, one in all_annotations(key):
        shown = [saved.name for saved in annotations.captures if place in saved.annotation_ids]
        yield block_text(annotations.block_id), LISTS[key][1](one), about(one.linked_elements), joined(shown, ", ")


datum_labels = {place: one.label for _, place, one in all_annotations("datum")}
for key, (title, _) in LISTS.items():
    print_table(title, ("part", "text", "about", "saved views"), annotation_rows(key))

# %% Holes, with the threads that their faces carry
HOLES = ("simple_holes", "taper_holes", "counter_bore_holes", "counter_sink_holes", "counter_drill_holes")


def thread_text(one: Object) -> str:
    name = one.designation or f"⌀{number(one.diameter)} × {number(one.pitch)}"
    hand = "LH" if one.orientation == "left_handed" else ""
    return joined((name, hand, f"↧{number(one.depth)}" if one.depth else ""))


def widening(one: Object) -> str:
    """What is wider at the opening. Each kind of hole has its own keys."""
    texts = {"diameter": "⌀", "depth": "↧", "sink_diameter": "⌵ ⌀", "angle": "∠"}
    return joined(sign + number(one[key]) for key, sign in texts.items() if key in one)


def point(vector: tuple[float, ...] | None) -> str:
    return f"({' '.join(map(number, vector))})" if vector else ""


def hole_rows() -> Iterator[tuple[str, ...]]:
    for data in parts:
        features = data.mfg_data
        if features is None or not features.has_data:
            continue
        for kind in HOLES:
            for feature in features[kind]:
                hole = feature.hole_data
                if hole is None:
                    continue
                faces = faces_of(feature.defining)
                threads = [each.thread_data for each in features.internal_threads if faces & faces_of(each.side_faces)]
                threads += [hole.hole_thread] if hole.hole_thread else []
                depth = "through" if hole.bottom_limit_extent_type == "up_to_last" else number(hole.primary_depth)
                yield (
                    block_text(data.block_id),
                    kind.removesuffix("_holes").replace("_", " "),
                    "⌀" + number(hole.primary_diameter),
                    depth,
                    joined(map(thread_text, filter(None, threads)), ", "),
                    widening(hole),
                    point(hole.center),
                    point(hole.direction),
                )


print_table("Holes", ("part", "kind", "size", "depth", "thread", "widening", "centre", "direction"), hole_rows())


# %% Threads outside
def external_threads() -> Iterator[tuple[str, ...]]:
    for data in parts:
        for feature in data.mfg_data.external_threads if data.mfg_data and data.mfg_data.has_data else ():
            thread = thread_text(feature.thread_data) if feature.thread_data else ""
            yield block_text(data.block_id), thread, about(feature.side_faces)


print_table("External threads", ("part", "thread", "about"), external_threads())
