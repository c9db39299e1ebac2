"""Reads what rsvg-convert renders and writes PNG files that are small and quick to read.

Only the standard library is used, so that the same pixels and the same zlib give the same bytes.
"""

import hashlib
import shutil
import struct
import subprocess
import sys
import zlib

SIGNATURE = b"\x89PNG\r\n\x1a\n"
GREY, RGB, PALETTE, RGBA = 0, 2, 3, 6


def render(svg, scale):
    """Width, height and rows of RGBA bytes of an SVG document at so many pixels a unit."""
    if not shutil.which("rsvg-convert"):
        sys.exit("rsvg-convert is missing; install the Debian package librsvg2-bin")
    done = subprocess.run(["rsvg-convert", "--zoom", str(scale)], input=svg.encode(),
                          stdout=subprocess.PIPE, check=True)
    return read(done.stdout)


def made_from(svg):
    """The comment by which a test knows whether the SVG has changed since."""
    return "sha256 of the SVG: " + hashlib.sha256(svg.encode()).hexdigest()


def stored(data):
    """Width, height, bits a channel, colour type, palette, its alpha, and rows of bytes as they are
    stored, of a PNG that is not interlaced."""
    if data[:8] != SIGNATURE:
        sys.exit("no PNG")
    packed, position, palette, clear = b"", 8, b"", b""
    while position < len(data):
        length, kind = struct.unpack(">I4s", data[position:position + 8])
        body = data[position + 8:position + 8 + length]
        if kind == b"IHDR":
            width, height, depth, colour, _, _, interlaced = struct.unpack(">IIBBBBB", body)
        elif kind == b"PLTE":
            palette = body
        elif kind == b"tRNS":
            clear = body
        elif kind == b"IDAT":
            packed += body
        position += length + 12
    if interlaced or (depth != 8 and colour != PALETTE and colour != GREY):
        sys.exit("a PNG of a kind that is not read here")
    samples = {GREY: 1, RGB: 3, PALETTE: 1, 4: 2, RGBA: 4}[colour]
    stride = (width * samples * depth + 7) // 8
    rows = _unfilter(zlib.decompress(packed), height, stride, max(1, samples * depth // 8))
    return width, height, depth, colour, palette, clear, rows


def read(data):
    """Width, height and rows of RGBA bytes."""
    width, height, depth, colour, palette, clear, rows = stored(data)
    return width, height, [_rgba(row, width, depth, colour, palette, clear) for row in rows]


def _unfilter(raw, height, stride, step):
    rows, prior = [], bytearray(stride)
    for y in range(height):
        start = y * (stride + 1)
        kind, row = raw[start], bytearray(raw[start + 1:start + 1 + stride])
        if kind == 2:
            row = bytearray((a + b) & 255 for a, b in zip(row, prior))
        elif kind:
            for i in range(stride):
                left = row[i - step] if i >= step else 0
                up, corner = prior[i], prior[i - step] if i >= step else 0
                guess = {1: left, 3: (left + up) // 2, 4: _paeth(left, up, corner)}[kind]
                row[i] = (row[i] + guess) & 255
        rows.append(row)
        prior = row
    return rows


def _paeth(left, up, corner):
    guess = left + up - corner
    a, b, c = abs(guess - left), abs(guess - up), abs(guess - corner)
    return left if a <= b and a <= c else up if b <= c else corner


def _rgba(row, width, depth, colour, palette, clear):
    if colour == RGBA:
        return bytes(row)
    if colour == RGB:
        return b"".join(bytes(row[i:i + 3]) + b"\xff" for i in range(0, 3 * width, 3))
    if colour == 4:
        return b"".join(bytes([row[i]] * 3 + [row[i + 1]]) for i in range(0, 2 * width, 2))
    out, most = bytearray(), (1 << depth) - 1
    for x in range(width):
        bit = x * depth
        value = row[bit // 8] >> (8 - depth - bit % 8) & most
        if colour == PALETTE:
            out += palette[3 * value:3 * value + 3]
            out.append(clear[value] if value < len(clear) else 255)
        else:
            out += bytes([value * 255 // most] * 3 + [255])
    return bytes(out)


def _chunk(kind, body):
    return struct.pack(">I", len(body)) + kind + body + struct.pack(
        ">I", zlib.crc32(kind + body))


def _file(width, height, depth, colour, lines, comment=""):
    head = struct.pack(">IIBBBBB", width, height, depth, colour, 0, 0, 0)
    plain = (SIGNATURE + _chunk(b"IHDR", head)
             + _chunk(b"IDAT", zlib.compress(b"".join(lines), 9)) + _chunk(b"IEND", b""))
    return with_comment(plain, comment) if comment else plain


def with_comment(data, comment):
    """The same PNG with a comment behind its head."""
    end = len(SIGNATURE) + 25
    return data[:end] + _chunk(b"tEXt", b"Comment\0" + comment.encode("latin-1")) + data[end:]


def _filtered(rows, step):
    """Each row stored plainly, or as its difference to the row above, whichever is calmer.

    The other filters save little here and take longer to undo.
    """
    prior = bytes(len(rows[0]))
    for row in rows:
        above = bytes((a - b) & 255 for a, b in zip(row, prior))
        left = bytes((a - b) & 255 for a, b in zip(row, bytes(step) + row))
        yield min((2, above), (1, left), key=lambda kind: sum(min(v, 256 - v) for v in kind[1]))
        prior = row


def _packed(width, rows, samples, colour, comment):
    lines = [bytes([kind]) + line for kind, line in _filtered(rows, samples)]
    return _file(width, len(rows), 8, colour, lines, comment)


def packed_rgb(width, rows, comment=""):
    """A 24-bit picture of rows of RGB bytes."""
    return _packed(width, rows, 3, RGB, comment)


def packed_rgba(width, rows, comment=""):
    """A picture with transparency of rows of RGBA bytes."""
    return _packed(width, rows, 4, RGBA, comment)


def packed_mask(width, rows, comment=""):
    """One bit a pixel of rows of truth values, white where true."""
    lines = []
    for row in rows:
        bits = "".join("1" if value else "0" for value in row)
        bits += "0" * (-len(bits) % 8)
        lines.append(b"\0" + int(bits, 2).to_bytes(len(bits) // 8, "big"))
    return _file(width, len(rows), 1, GREY, lines, comment)
