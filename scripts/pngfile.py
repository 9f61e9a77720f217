"""Writes a PNG without any imaging library: the project's generated images use it."""
import struct
import zlib


def write_png(path, image):
    """image: rows of pixels, each pixel 3 (RGB) or 4 (RGBA) channels from 0 to 255."""
    height = len(image)
    width = len(image[0])
    channels = len(image[0][0])
    raw = b"".join(b"\x00" + bytes(max(0, min(255, round(c))) for pixel in row for c in pixel)
                   for row in image)

    def chunk(kind, data):
        return (struct.pack(">I", len(data)) + kind + data +
                struct.pack(">I", zlib.crc32(kind + data) & 0xFFFFFFFF))

    colour_type = 6 if channels == 4 else 2  # RGBA or truecolour, 8 bits each
    header = struct.pack(">IIBBBBB", width, height, 8, colour_type, 0, 0, 0)
    with open(path, "wb") as f:
        f.write(b"\x89PNG\r\n\x1a\n")
        f.write(chunk(b"IHDR", header))
        f.write(chunk(b"IDAT", zlib.compress(raw, 9)))
        f.write(chunk(b"IEND", b""))
