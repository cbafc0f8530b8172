#!/usr/bin/env python3
"""Turns the 24-bit BMPs the form tests take into PNGs: bmp_to_png.py OUT_DIR FILE.bmp..."""
import os
import struct
import sys
import zlib


def png(path_in, path_out):
    data = open(path_in, "rb").read()
    offset, = struct.unpack_from("<I", data, 10)
    width, height, _, bits = struct.unpack_from("<iiHH", data, 18)
    if bits != 24:
        raise SystemExit(f"{path_in}: {bits}-bit, not 24")
    stride = (width * 3 + 3) & ~3
    rows = []
    for y in range(abs(height)):
        # Bottom-up rows of blue, green, red.
        start = offset + (abs(height) - 1 - y if height > 0 else y) * stride
        row = data[start:start + width * 3]
        rgb = bytearray(len(row))
        rgb[0::3], rgb[1::3], rgb[2::3] = row[2::3], row[1::3], row[0::3]
        rows.append(b"\0" + bytes(rgb))

    def chunk(kind, body):
        return struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body))

    header = struct.pack(">IIBBBBB", width, abs(height), 8, 2, 0, 0, 0)
    with open(path_out, "wb") as out:
        out.write(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(b"".join(rows), 6))
                  + chunk(b"IEND", b""))


for path in sys.argv[2:]:
    png(path, os.path.join(sys.argv[1], os.path.splitext(os.path.basename(path))[0] + ".png"))
