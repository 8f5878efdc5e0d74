#!/usr/bin/python3
"""Writes the seeds of the fuzz targets: make_corpus.py FOLDER

The files are the same every time, in one folder per target. Inputs that once broke something
belong here too, under a name that says what they are.
"""

import math
import random
import shutil
import struct
import sys
import zlib
from pathlib import Path
from xml.sax.saxutils import quoteattr

ROOT = Path(__file__).resolve().parent.parent
TICKS_PER_SECOND = 32_000_000

# Identifiers of the profile in fuzz_record.cpp.
SPEED, LATITUDE, LONGITUDE, ALTITUDE, THROTTLE, FUEL_A, FUEL_B = range(500, 507)
PRESSURE, LAMP, FAULTS = 507, 508, 509
FLOAT, BLONG, USHORT, BSHORT = 2, 5, 7, 8

# Last byte of a record seed, see fuzz_record.cpp.
ONE_FILE, TWO_FILES, THREE_FILES, IMPERIAL, LITTLE_MEMORY = 0, 1, 2, 0x40, 0x80


# --- record files -----------------------------------------------------------------------------

def header(order=">", magic=0xABBA, date=(2023, 5, 17, 9, 30, 0), ticks=0):
    """The 128 bytes before the entries, in either byte order."""
    bytes_ = struct.pack(order + "HHHHI", magic, 1, 2, 3, 4)
    bytes_ += struct.pack(order + "h6B", *date, 0)
    bytes_ += struct.pack(order + "IIiI", ticks >> 32, ticks & 0xFFFFFFFF, 1, 4711)
    for text, width in (("PART-A", 13), ("ECU", 13), ("E-0815", 13), ("F4", 13), ("PART-B", 13),
                        ("1.2.3", 7)):
        bytes_ += text.encode("latin-1").ljust(width, b"\0")
    return bytes_.ljust(128, b"\0")


def entry(time, identifier, type_, payload, source=2, order=">"):
    """One message; payload: the four value bytes."""
    ticks = int(time * TICKS_PER_SECOND) & 0xFFFFFFFFFFFFFFFF
    return bytes((1, type_, 0, 0)) + payload + struct.pack(
        order + "BBHIHHII", 0, 0, source, identifier, 0, 0, ticks >> 32, ticks & 0xFFFFFFFF)


def real(value):
    return struct.pack(">f", value)


def speed(time, value, **options):
    return entry(time, SPEED, FLOAT, real(value), **options)


def flight(order=">", start=10.0, step=0.5):
    """A flight short enough for a fuzzer: roll, climb, cruise, landing."""
    out = b""
    for i in range(70):
        time = start + i * step
        flying = 15 <= i < 45
        rows = (
            (SPEED, FLOAT, real(120.0 if flying else 5.0)),
            (LATITUDE, FLOAT, real(4812.0 + 0.01 * i)),
            (LONGITUDE, FLOAT, real(1142.0 - 0.01 * i)),
            (ALTITUDE, FLOAT, real(500.0 + (20.0 * min(i - 15, 45 - i) if flying else 0.0))),
            (THROTTLE, FLOAT, real(95.0 if 12 < i < 25 else 60.0)),
            (FUEL_A, FLOAT, real(17.5)),
            (FUEL_B, FLOAT, real(17.25)),
            (PRESSURE, USHORT, struct.pack(">HH", 60 + i, 0)),
        )
        for identifier, type_, payload in rows:
            out += entry(time, identifier, type_, payload, source=i % 3, order=order)
        if i % 20 == 0:
            out += entry(time, LAMP, BSHORT, struct.pack(">HH", i // 20, 0), order=order)
            out += entry(time, FAULTS, BLONG, struct.pack(">I", 1 << (i % 32)), order=order)
    return out


def speeds(times, value=20.0):
    return header() + b"".join(speed(t, value + i) for i, t in enumerate(times))


def records():
    """Name and bytes of each record seed."""
    yield "nothing", b""
    yield "empty-file", bytes((ONE_FILE,))
    yield "header-only", header() + bytes((ONE_FILE,))
    whole = header() + flight()
    yield "flight-big-endian", whole + bytes((ONE_FILE,))
    yield "flight-imperial", whole + bytes((IMPERIAL,))
    yield "flight-little-endian", header("<") + flight("<") + bytes((ONE_FILE,))
    yield "flight-in-three-files", whole + bytes((THREE_FILES,))
    yield "flight-refused-for-memory", whole + bytes((LITTLE_MEMORY,))
    yield "two-flights", header() + flight() + flight(start=60.0) + bytes((ONE_FILE,))
    yield "flight-backwards-in-time", header() + flight(start=60.0, step=-0.5) + bytes((ONE_FILE,))

    first_entries = header() + speed(1.0, 30.0) + speed(2.0, 60.0)
    for size in range(len(first_entries)):
        yield f"cut-at-{size:03}", first_entries[:size] + bytes((ONE_FILE,))

    yield "wrong-magic", header(magic=0x1234) + flight() + bytes((ONE_FILE,))
    yield "impossible-date", header(date=(0, 0, 0, 0, 0, 0)) + flight() + bytes((TWO_FILES,))
    yield "impossible-time", header(date=(2024, 2, 29, 77, 99, 88)) + bytes((ONE_FILE,))
    yield "ancient-date", header(date=(-32768, 12, 31, 23, 59, 59)) + bytes((THREE_FILES,))

    yield "times-equal", speeds([5.0] * 20) + bytes((ONE_FILE,))
    yield "times-backwards", speeds([20.0 - i for i in range(20)]) + bytes((ONE_FILE,))
    yield "times-jump-by-days", speeds([0.0, 1.0, 86400.0 * 30, 2.0, 3.0]) + bytes((ONE_FILE,))
    rng = random.Random(1)
    yield "times-random", speeds([rng.random() * 100 for _ in range(60)]) + bytes((TWO_FILES,))
    yield "time-at-the-end-of-the-clock", speeds([1.0, 5.7e11, 2.0]) + bytes((ONE_FILE,))

    values = [math.nan, math.inf, -math.inf, -0.0, 3.4e38, 1e-45, 18000.0, -18000.0, 8959.999]
    everywhere = b"".join(entry(i, identifier, FLOAT, real(value))
                          for identifier in range(500, 510) for i, value in enumerate(values))
    yield "edge-values", header() + everywhere + bytes((ONE_FILE,))
    taxi = [120.0] * 13 + [math.nan] * 5 + [39.0] * 13
    yield "speed-not-a-number-in-flight", header() + b"".join(
        speed(i, value) for i, value in enumerate(taxi)) + bytes((ONE_FILE,))

    yield "many-identifiers", header() + b"".join(
        entry(i, i * 2654435761 % 2**32, i % 32, real(i)) for i in range(300)) + bytes((ONE_FILE,))
    collective = (0x7FFFFFFF, 0x7FFFFFFE, 0x7FFFFFFD, 0, 0xFFFFFFFF, 0x80000000)
    yield "identifiers-of-the-collective-lists", header() + b"".join(
        entry(i, collective[i % 6], FLOAT, real(i), source=i % 2)
        for i in range(40)) + bytes((ONE_FILE,))


# --- profiles ---------------------------------------------------------------------------------

TYPES = ("NODATA ERROR FLOAT LONG ULONG BLONG SHORT USHORT BSHORT CHAR UCHAR BCHAR SHORT_2 USHORT_2 "
         "BSHORT_2 CHAR_4 UCHAR_4 BCHAR_4 CHAR_2 UCHAR_2 BCHAR_2 MEMID CHKSUM ACHAR ACHAR_2 ACHAR_4 "
         "CHAR_3 UCHAR_3 BCHAR_3 ACHAR_3 UNHEARD").split()


def element(tag, content="", **attributes):
    text = "".join(f" {name}={quoteattr(str(value))}" for name, value in attributes.items())
    return f"<{tag}{text}>{content}</{tag}>\n"


def profile(*parts):
    return element("CanAerospaceProfile", "".join(parts), version="1", profileId="P", name="Test")


def parameter(identifier, type_="FLOAT", **attributes):
    attributes = {"name": f"P {identifier}", "startByte": 4, **attributes}
    return element("Parameter", id=identifier, dataType=type_, **attributes)


LISTS = (
    element("Variants", element("Variant", name="Tow", id="1", color="#ff0000")
            + element("Variant", name="School", id="2", color="no colour")
            + element("Variant", name="", id="", color="")),
    element("UnitConversions", element("Unit", unitMetric="C", unitImperial="F", factor="1.8", offset="32")
            + element("Unit", unitMetric="x", unitImperial="y")),
    element("EnumList", element("Enum", "".join(
        element("Value", val=i, label=f"value {i}") for i in range(4)), name="WarningLamp")),
    element("ThresholdList", element("Threshold", element("Value", val=0, color="lime", state="OK")
            + element("Value", val="1e3", color="no colour", state="UNHEARD")
            + element("Value", val="nan", color="#12345", state="LIMIT"), name="Hot")),
)


def profiles():
    """Name and bytes of each profile seed."""
    yield "empty", ""
    yield "no-xml", "Engine monitoring unit, 2023\n"
    yield "other-root", element("Profile", parameter(1))
    yield "demo", (ROOT / "resources/demo/Profile.xml").read_text(encoding="utf-8")
    yield "every-type", profile(*LISTS, element("Device", "".join(
        parameter(500 + i, type_, enumId="WarningLamp", thresholdId="Hot", unitMetric="C",
                  unitImperial="F", startBit=0, endBit=1) for i, type_ in enumerate(TYPES)), name="A"))
    yield "roles", profile(element("Device", "".join(
        parameter(i, velixDataType=role) for i, role in enumerate(
            ("Latitude", "Longitude", "Altitude", "GroundSpeed", "Latitude"), 1)), name="A"))
    yield "matrix", profile(element("Device", element("ErrorMatrix", id=600, name="M") + "".join(
        parameter(600, "BLONG", startBit=b, endBit=b, errorType="Fault")
        for b in (-1, 0, 31, 32, 31, 2147483647)), name="A"))
    yield "variants-in-and-out", profile(*LISTS, *(
        element("Device", parameter(1), name=variant, variant=variant)
        for variant in ("Tow", "!Tow", "Tow,School", "!Tow, !School", ",", "!", " Tow ,!Tow")))
    yield "identifiers-twice-or-zero", profile(element(
        "Device", "".join(parameter(i) for i in (0, 0, 7, 7, -1, "0x10", "010", "abc", "")), name="A"))
    offsets = (-1, 0, 24, 25, 27, 28, 2147483647, -2147483648, 99999999999)
    yield "places-outside-of-the-entry", profile(element("Device", "".join(
        parameter(i, type_, startByte=offset)
        for i, (type_, offset) in enumerate((t, o) for t in TYPES[:12] for o in offsets)), name="A"))
    bits = ((0, 31), (31, 0), (-1, 3), (3, 32), (15, 16), (2147483647, 2147483647), (-2147483648, 0))
    yield "bits-outside-of-the-word", profile(*LISTS, element("Device", "".join(
        parameter(i, type_, startBit=a, endBit=b, enumId="WarningLamp")
        for i, (type_, (a, b)) in enumerate((t, p) for t in ("BLONG", "BSHORT", "BCHAR")
                                            for p in bits)), name="A"))
    numbers = ("nan", "inf", "-inf", "1e308", "-1e308", "1e-320", "", "1,5", "0x7fffffff")
    yield "scaling-at-the-edges", profile(element("Device", "".join(
        parameter(i, type_, factor=number, offset=number, precision=precision)
        for i, (type_, number, precision) in enumerate(
            (t, n, p) for t in ("FLOAT", "LONG", "ULONG", "SHORT", "UCHAR") for n in numbers
            for p in (-1, 2, 400, 2147483647))), name="A"))
    yield "unknown-elements", profile(*LISTS, element("Devices", parameter(1)),
                                      element("Device", element("Parameters", parameter(2)), name="A"))
    yield "nested-50000-deep", "<CanAerospaceProfile>" + "<Device>" * 50_000
    yield "entity-bomb", ('<?xml version="1.0"?><!DOCTYPE x [<!ENTITY a "aaaaaaaaaaaaaaaa">' + "".join(
        f'<!ENTITY {b} "{("&" + a + ";") * 16}">' for a, b in zip("abcdefg", "bcdefgh"))
        + ']><CanAerospaceProfile name="&h;">&h;</CanAerospaceProfile>')
    yield "parameters-5000", profile(element("Device", "".join(
        parameter(i, name="Parameter " + "x" * 100) for i in range(5_000)), name="A"))
    yield "latin-1", b'<?xml version="1.0" encoding="ISO-8859-1"?><CanAerospaceProfile name="\xb0C"/>'
    yield "utf-16", profile(*LISTS, element("Device", parameter(1), name="A")).encode("utf-16")
    yield "cut-in-an-attribute", profile(*LISTS)[:-200]


# --- settings ---------------------------------------------------------------------------------

def setting(key, value):
    return element("Property", id=key, value=value)


def settings():
    """Name and bytes of each seed of a settings file."""
    yield "empty", ""
    yield "no-xml", "[General]\nUnit=1\n"
    yield "usual", element("VELIX", "".join(setting(key, value) for key, value in (
        ("Unit", "1"), ("LastPath", "/home/pilot/Karten & Flüge"), ("Style", "dark"),
        ("FontSize", "11"), ("Speed", "1e400"), ("Flag", "True"), ("Empty", ""))))
    yield "other-root", element("Settings", setting("Unit", "1"))
    yield "keys-twice-or-none", element(
        "VELIX", setting("A", "1") + setting("A", "2") + element("Property", value="3")
        + element("Property", id="B") + element("Property"))
    yield "blanks", '<VELIX><Property id=" a&#10;b&#9;" value="&#13;&#10; x&#x9;  "/></VELIX>'
    yield "quotes", element("VELIX", setting("<\"'&>", "]]> <!-- &lt; \"'"))
    yield "beyond-the-first-plane", element("VELIX", setting("\U0001F6E9", "\U0010FFFF\uFFFD"))
    yield "numbers", element("VELIX", "".join(setting(f"N{i}", text) for i, text in enumerate(
        ("99999999999999999999", "-99999999999999999999", "0x10", "1e", "nan", "inf", " 7", "7up"))))
    yield "other-elements", "<VELIX><!-- c --><?pi x?>text<Other id='Unit' value='1'/><![CDATA[y]]></VELIX>"
    yield "nested-deep", "<VELIX>" + "<Property id='a'>" * 300 + "</Property>" * 300 + "</VELIX>"
    yield "namespaces", "<v:VELIX xmlns:v='u'><v:Property id='a' v:value='1' value='2'/></v:VELIX>"
    yield "doctype", "<!DOCTYPE VELIX [<!ENTITY e 'text'>]><VELIX><Property id='&e;' value='&e;'/></VELIX>"
    yield "cut", element("VELIX", setting("Unit", "1"))[:-12]


# --- the map ----------------------------------------------------------------------------------

TILE, META, TERRAIN, COAST = (bytes((choice,)) for choice in range(4))  # see fuzz_map.cpp


def png(width=4, height=4, depth=8, interlace=0):
    """A grey image; its header may announce more than there is."""
    def chunk(kind, content):
        return (struct.pack(">I", len(content)) + kind + content
                + struct.pack(">I", zlib.crc32(kind + content)))

    rows = b"".join(b"\0" + bytes(range(4)) for _ in range(4))
    return (b"\x89PNG\r\n\x1a\n"
            + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, depth, 0, 0, 0, interlace))
            + chunk(b"IDAT", zlib.compress(rows)) + chunk(b"IEND", b""))


def coast(*lines):
    return b"COAST1\n" + b"".join(
        struct.pack("<I", len(line)) + b"".join(
            struct.pack("<ii", round(x * 1e6), round(y * 1e6)) for x, y in line)
        for line in lines)


def maps():
    """Name and bytes of each seed of the map."""
    yield "nothing", b""
    yield "tile", png() + TILE
    yield "tile-cut", png()[:-9] + TILE
    yield "tile-of-a-gigabyte", png(30_000, 30_000) + TILE
    yield "tile-interlaced", png(interlace=1) + TILE
    yield "tile-without-size", png(0, 0) + TILE
    yield "tile-gif", b"GIF89a\xff\x03\xff\x03\x80\0\0\0\0\0\xff\xff\xff,\0\0\0\0\1\0\1\0\0\2\2D\1\0;" + TILE
    yield "tile-page", b"<html><body>Please log in</body></html>" + TILE
    yield "meta", b'1700000000\n"tag"\nMon, 12 Jan 1970 14:03:20 GMT\n' + META
    yield "meta-empty", META
    yield "meta-numbers", b"99999999999999999999\n\n\n\n\n" + META
    yield "meta-binary", bytes(range(256)) + META
    yield "terrain-slope", bytes(range(200)) + TERRAIN
    yield "terrain-holes", b"\x80\x00\x01\x00" + TERRAIN
    yield "terrain-other-size", bytes(49) + TERRAIN
    yield "coast", coast([(11, 48), (12, 48.5), (-179, 10)], [(179, -80), (-179.9, 89.9)]) + COAST
    yield "coast-out-of-range", coast([(2000, 1000), (-2000, -1000)], [(0, 0)], []) + COAST
    yield "coast-cut", coast([(11, 48), (12, 48.5)])[:-3] + COAST
    yield "coast-of-a-billion-points", b"COAST1\n\xff\xff\xff\x7f" + COAST


# --- view descriptions ------------------------------------------------------------------------

def views():
    """Name and bytes of each view seed."""
    yield "empty", ""
    yield "instruments", (ROOT / "resources/views/instruments.v").read_text(encoding="utf-8")
    dial = "view size=100,100\ngauge var=N at=50,50 radius=40 fill=5 needle=5,30 {\n"
    yield "dial", dial + (" scale from=-5 to=5 step=1 minor=2 divide=10 unit=V decimals=1\n"
                          " band from=-9 to=0 color=limit\n mark at=1 color=warning\n"
                          " number at=1,1 size=9 align=right\n unit at=9,9\n}\n")
    yield "dial-turned-round", dial + " scale from=5 to=-5 step=1\n}\n"
    yield "dial-without-range", dial + "}\n"
    yield "dial-large-numbers", dial + " scale from=-1e12 to=1e12 step=1e10 factor=1e12 offset=-1e12\n}\n"
    yield "dial-small-numbers", dial + " scale from=0 to=1e-300 step=1e-302 decimals=9 round=1e-300\n}\n"
    for direction in ("up", "right"):
        for ticks in ("before", "after", "none"):
            yield f"bar-{direction}-{ticks}", (
                f"view size=9,9\nbar var=N at=1,1 size=5,5 direction={direction} ticks={ticks}"
                " style=pointer {\n scale from=0 to=3 step=1\n band from=0 to=2 color=#123\n}\n")
    yield "lamps", ('view size=10,10\nlamp at=1,1 size=5,5 text="a" {\n case if="N = 2" color=limit\n'
                    ' case if="N != 1 or N_STATE >= 1 and M < 2" text=b\n}\nlamp var=N at=0,0 size=0,0\n')
    yield "texts", ('view size=10,10 background=#00000000\ncolors text=#fff own=limit\n'
                    'label at=1,1 text="a \\"b\\" \u202e\U0001F6E9" width=3 color=own bold=yes\n'
                    'value var="a b" at=-1e5,1e5 size=1000 {\n case if="N = 0" text=zero\n}\n')
    yield "shapes", ("view size=10,10\nrectangle at=1,1 size=1e5,0 corner=1e5 line=text width=1e5 fill=muted\n"
                     "line from=-1e5,-1e5 to=1e5,1e5 width=0\narc at=5,5 radius=1e5 sweep=360,-360 width=1e5\n")
    yield "groups", "view size=9,9\n" + "group at=1e5,1e5 {\n" * 40 + "line from=1,1 to=2,2\n" + "}\n" * 41
    yield "layouts", ("view size=9,5 tall=5,9 low=20,2\ngroup at=1,1 tall=2,2 low=3,0 {\nvalue var=N at=1,1\n}\n"
                      "lamp at=1,1 size=2,2 if=\"TALL = 1 or LOW = 1 or N_MISSING = 1\"\n")
    yield "no-text", bytes(range(256)) * 4
    yield "mistakes", "view size=9,9\n" + "x y=1 {\n" * 200


def main():
    if len(sys.argv) != 2:
        sys.exit("usage: make_corpus.py FOLDER")
    folder = Path(sys.argv[1])
    for target, seeds in (("record", records), ("profile", profiles), ("settings", settings),
                          ("map", maps), ("view", views)):
        shutil.rmtree(folder / target, ignore_errors=True)
        (folder / target).mkdir(parents=True)
        for name, content in seeds():
            data = content if isinstance(content, bytes) else content.encode("utf-8")
            (folder / target / name).write_bytes(data)


if __name__ == "__main__":
    main()
