#!/usr/bin/env python3
"""Writes the textures of the sample installation as converter XML sources (.TgPcDx.xml).

Each picture is drawn at every mip level from a small pattern function and stored as real
DXT1, DXT3 or 32-bit ARGB data, so any picture viewer shows it once the texture has been
turned into a .dds. Run it once after changing a pattern; the XML it writes is the source
that the build converts. With --check it writes nothing and tells whether the sources are
still what it would write, and whether each level, decoded independently, shows its picture.

    tools/make-sample-textures.py [--check] [data/SampleInstall]
"""

import math
import re
import struct
import sys
from pathlib import Path

EOL = "\r\n"
NAMESPACE = 'xmlns:d="http://www.kuju.com/TnT/2003/Delta" d:version="1.0"'


# --- the converter's XML layout -------------------------------------------------------------

class Element:
    """An element that holds other lines; `oid` is the object id the converter prints."""

    def __init__(self, name, *children, oid=None):
        self.name, self.children, self.oid = name, list(children), oid


class Value:
    def __init__(self, name, kind, value):
        self.name, self.kind, self.value = name, kind, value


class Blob:
    def __init__(self, data):
        self.data = bytes(data)


class Nil:
    pass


def escape(text):
    return (text.replace("&", "&amp;").replace("<", "&lt;").replace(">", "&gt;")
            .replace("'", "&apos;").replace('"', "&quot;"))


def value_line(node):
    text = escape(node.value) if node.kind == "cDeltaString" else str(int(node.value))
    return '<%s d:type="%s">%s</%s>' % (node.name, node.kind, text, node.name)


def blob_text(data):
    groups = [data[i:i + 8].hex().upper() for i in range(0, len(data), 8)]
    rows = [" ".join(groups[i:i + 4]) for i in range(0, len(groups), 4)]
    return '<d:blob d:size="%d">%s</d:blob>' % (len(data), EOL.join(rows))


def lines(node, depth, out):
    indent = "\t" * depth
    if isinstance(node, Element):
        oid = ' d:id="%d"' % node.oid if node.oid else ""
        if not node.children:
            out.append("%s<%s%s/>" % (indent, node.name, oid))
            return
        out.append("%s<%s%s>" % (indent, node.name, oid))
        for child in node.children:
            lines(child, depth + 1, out)
        out.append("%s</%s>" % (indent, node.name))
    elif isinstance(node, Value):
        out.append(indent + value_line(node))
    elif isinstance(node, Blob):
        out.append(indent + blob_text(node.data))
    elif isinstance(node, Nil):
        out.append(indent + "<d:nil/>")
    else:
        raise TypeError(node)


def document(root):
    """The whole text of a converter XML file for `root`, CR LF line ends."""
    out = []
    lines(root, 0, out)
    oid = ' d:id="%d"' % root.oid if root.oid else ""
    out[0] = "<%s %s%s>" % (root.name, NAMESPACE, oid)
    return EOL.join(['<?xml version="1.0" encoding="utf-8"?>'] + out) + EOL


def write(path, root):
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(document(root).encode("utf-8"))


# --- block compression ----------------------------------------------------------------------

def rgb565(colour):
    r, g, b = colour[:3]
    return ((r >> 3) << 11) | ((g >> 2) << 5) | (b >> 3)


def expand565(packed):
    r, g, b = (packed >> 11) & 31, (packed >> 5) & 63, packed & 31
    return (r << 3 | r >> 2, g << 2 | g >> 4, b << 3 | b >> 2)


def colour_block(pixels):
    """Eight bytes of DXT colour data for 16 RGBA pixels, always in four-colour mode."""
    # Transparent pixels show no colour, so they do not get to stretch the palette.
    seen = [p for p in pixels if p[3] > 0] or pixels
    luma = [p[0] * 3 + p[1] * 6 + p[2] for p in seen]
    hi = rgb565(seen[luma.index(max(luma))])
    lo = rgb565(seen[luma.index(min(luma))])
    if hi < lo:
        hi, lo = lo, hi
    if hi == lo:
        return struct.pack("<HHI", hi, lo, 0)
    c0, c1 = expand565(hi), expand565(lo)
    palette = [c0, c1,
               tuple((2 * a + b) // 3 for a, b in zip(c0, c1)),
               tuple((a + 2 * b) // 3 for a, b in zip(c0, c1))]
    indices = 0
    for i, p in enumerate(pixels):
        nearest = min(range(4), key=lambda k: sum((p[j] - palette[k][j]) ** 2 for j in range(3)))
        indices |= nearest << (2 * i)
    return struct.pack("<HHI", hi, lo, indices)


def alpha_block(pixels):
    bits = 0
    for i, p in enumerate(pixels):
        bits |= (p[3] >> 4) << (4 * i)
    return struct.pack("<Q", bits)


def blocks(width, height, pattern):
    for by in range(0, height, 4):
        for bx in range(0, width, 4):
            yield [pattern(bx + x, by + y, width, height) for y in range(4) for x in range(4)]


def dxt1(width, height, pattern):
    return b"".join(colour_block(b) for b in blocks(width, height, pattern))


def dxt3(width, height, pattern):
    return b"".join(alpha_block(b) + colour_block(b) for b in blocks(width, height, pattern))


def argb8888(width, height, pattern):
    out = bytearray()
    for y in range(height):
        for x in range(width):
            r, g, b, a = pattern(x, y, width, height)
            out += bytes((b, g, r, a))
    return bytes(out)


FORMATS = {
    "DXT1": ("HC_IMAGE_FORMAT_COMPRESSED", dxt1),
    "DXT3": ("HC_IMAGE_FORMAT_COMPRESSED_EXPL_ALPHA", dxt3),
    "ARGB8888": ("HC_IMAGE_FORMAT_COLA8888", argb8888),
}


# --- the pictures ---------------------------------------------------------------------------

def livery(body, stripe):
    """A body colour with a stripe across the middle; the stripe keeps to whole 4x4 blocks."""
    def pattern(x, y, w, h):
        middle = h // 2
        half = max(2, (h // 8) // 4 * 4)
        if middle - half <= y < middle + half:
            return stripe + (255,)
        return body + (255,)
    return pattern


def windows(x, y, w, h):
    """Maroon coach side with a row of cream windows."""
    if h // 4 <= y < h // 2 and (x * 4 // w) % 2 == 0 and x % (w // 4) != 0:
        return (235, 225, 180, 255)
    return (120, 20, 30, 255)


def diagonal(x, y, w, h):
    """Blue body with a white diagonal band."""
    if abs(x - y) <= max(1, w // 8):
        return (250, 250, 250, 255)
    return (30, 60, 170, 255)


def buffer_face(x, y, w, h):
    """A grey buffer head on a transparent ground, with a soft rim."""
    r = math.hypot(x + 0.5 - w / 2, y + 0.5 - h / 2) / (w / 2)
    if r > 1:
        return (0, 0, 0, 0)
    shade = int(200 - 80 * r)
    return (shade, shade, shade, 255 if r < 0.8 else 128)


def leaves(x, y, w, h):
    """Green leaf clusters; the gaps between them are transparent."""
    cell = max(2, w // 4)
    cx, cy = (x % cell) - cell / 2 + 0.5, (y % cell) - cell / 2 + 0.5
    if cx * cx + cy * cy > (cell / 2) ** 2:
        return (40, 90, 30, 0)
    return (50, 140 + 20 * ((x // cell + y // cell) % 2), 40, 255)


def bricks(x, y, w, h):
    """Red bricks in stretcher bond with grey mortar."""
    course = max(2, h // 4)
    offset = (w // 4) if (y // course) % 2 else 0
    if y % course == 0 or (x + offset) % max(2, w // 2) == 0:
        return (170, 170, 160, 255)
    return (160, 50, 35, 255)


def landscape(x, y, w, h):
    """Sky over a green field, with a rail line across the field."""
    if y < h // 2:
        return (120 + 100 * y // h, 170 + 60 * y // h, 240, 255)
    if y == h * 3 // 4:
        return (90, 70, 60, 255)
    return (70, 150, 60, 255)


# Path below the installation, format, top level size, levels, pattern, id base.
TEXTURES = [
    (r"Assets\Sample\Stock\RailVehicles\Diesel\Shunter\shunter_body", "DXT1", 32, 4,
     livery((20, 110, 50), (240, 200, 20)), 180332120),
    (r"Assets\Sample\Stock\RailVehicles\Diesel\Mainline\mainline_body", "DXT1", 32, 4,
     diagonal, 180335440),
    (r"Assets\Sample\Stock\RailVehicles\Passenger\Mk1\coach_body", "DXT1", 32, 4,
     windows, 180338760),
    (r"Assets\Sample\Stock\RailVehicles\Textures\buffers", "DXT3", 16, 3,
     buffer_face, 180342080),
    (r"Assets\Sample\Scenery\Trees\oak_leaves", "DXT3", 32, 4, leaves, 180345400),
    (r"Assets\Sample\Scenery\Buildings\Textures\brick", "ARGB8888", 16, 3, bricks, 180348720),
    (r"Assets\Sample\Routes\TemplateRoutes\loading_branch", "ARGB8888", 32, 2,
     landscape, 180352040),
]


def texture(name, kind, size, levels, pattern, oid):
    format_name, encode = FORMATS[kind]
    mips = []
    for level in range(levels):
        side = size >> level
        mips.append(Element(
            "cHcImageDx",
            Value("Format", "cDeltaString", format_name),
            Value("IsSwizzled", "bool", 0),
            Value("Width", "sUInt16", side),
            Value("Height", "sUInt16", side),
            Blob(encode(side, side, pattern)),
            oid=oid + 64 + 80 * level))
    return Element(
        "cHcTextureGroup",
        Element("Texture", Element(
            "cHcTexture",
            Value("Width", "sUInt32", size),
            Value("Height", "sUInt32", size),
            Value("Name", "cDeltaString", name),
            Element("Data", Element(
                "cHcTextureData",
                Element("Mip", *mips),
                Element("TextureBlob"),
                Element("Palette", Nil()),
                oid=oid + 48)),
            oid=oid + 8)),
        oid=oid)


# --- checking: an independent decoder ----------------------------------------------------------

def decode_colour(block, four_colour_always):
    c0, c1, bits = struct.unpack("<HHI", block)
    a, b = expand565(c0), expand565(c1)
    if c0 > c1 or four_colour_always:
        palette = [a + (255,), b + (255,),
                   tuple((2 * x + y) // 3 for x, y in zip(a, b)) + (255,),
                   tuple((x + 2 * y) // 3 for x, y in zip(a, b)) + (255,)]
    else:
        palette = [a + (255,), b + (255,),
                   tuple((x + y) // 2 for x, y in zip(a, b)) + (255,), (0, 0, 0, 0)]
    return [palette[(bits >> (2 * i)) & 3] for i in range(16)]


def decode(kind, side, data):
    """The picture as rows of RGBA tuples, decoded without the encoder's help."""
    picture = [[None] * side for _ in range(side)]
    if kind == "ARGB8888":
        for i in range(side * side):
            b, g, r, a = data[4 * i:4 * i + 4]
            picture[i // side][i % side] = (r, g, b, a)
        return picture
    size = 8 if kind == "DXT1" else 16
    per_row = side // 4
    for n in range(len(data) // size):
        block = data[n * size:(n + 1) * size]
        if kind == "DXT1":
            pixels = decode_colour(block, False)
        else:
            alpha = struct.unpack("<Q", block[:8])[0]
            pixels = [p[:3] + (((alpha >> (4 * i)) & 15) * 17,)
                      for i, p in enumerate(decode_colour(block[8:], True))]
        for i, p in enumerate(pixels):
            picture[(n // per_row) * 4 + i // 4][(n % per_row) * 4 + i % 4] = p
    return picture


def picture_errors(kind, side, data, pattern):
    """Mean and largest channel error of the decoded level against the pattern it was drawn from."""
    errors = []
    for y, row in enumerate(decode(kind, side, data)):
        for x, got in enumerate(row):
            want = pattern(x, y, side, side)
            if abs(got[3] - want[3]) > 8:
                errors.append(255)
            elif want[3] > 0:
                errors.append(max(abs(g - w) for g, w in zip(got[:3], want[:3])))
    return sum(errors) / len(errors), max(errors)


def check(root):
    """Each texture source is what this script writes now, and its levels show their picture."""
    faults = 0
    for path, kind, size, levels, pattern, oid in TEXTURES:
        target = target_path(root, path)
        expected = document(texture(name_below_product(path), kind, size, levels, pattern, oid))
        if not target.exists() or target.read_bytes() != expected.encode("utf-8"):
            print("FAIL %s: differs from what this script writes" % target)
            faults += 1
            continue
        rows = re.findall(r'<d:blob d:size="\d+">([^<]*)</d:blob>', expected)
        for level, hex_text in enumerate(rows):
            side = size >> level
            data = bytes.fromhex("".join(hex_text.split()))
            mean, worst = picture_errors(kind, side, data, pattern)
            if mean > 8 or worst > 24:
                print("FAIL %s level %d: mean error %.1f, worst %d" % (target, level, mean, worst))
                faults += 1
    print("%d textures checked, %d faults" % (len(TEXTURES), faults))
    return faults == 0


def target_path(root, path):
    parts = path.split("\\")
    return root.joinpath(*parts).with_name(parts[-1] + ".TgPcDx.xml")


def name_below_product(path):
    """The name a texture carries: its path below Assets, provider and product."""
    return "\\".join(path.split("\\")[3:])


def main():
    args = sys.argv[1:]
    checking = args[:1] == ["--check"]
    args = args[1:] if checking else args
    root = Path(args[0] if args else Path(__file__).parent.parent / "data" / "SampleInstall")
    if checking:
        sys.exit(0 if check(root) else 1)
    for path, kind, size, levels, pattern, oid in TEXTURES:
        target = target_path(root, path)
        write(target, texture(name_below_product(path), kind, size, levels, pattern, oid))
        print(target)


if __name__ == "__main__":
    main()
