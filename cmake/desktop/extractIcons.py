"""Writes the pictures of an .ico file as PNG files into the tree that desktops look for icons in.

extractIcons.py FILE.ico DIRECTORY NAME makes DIRECTORY/16x16/apps/NAME.png and so on. The pictures of the file have to
be PNG themselves, which is what the format calls a compressed picture.
"""

import pathlib
import struct
import sys

HEADER = struct.Struct("<HHH")  # reserved, type, number of pictures
ENTRY = struct.Struct("<BBBBHHII")  # width, height, colours, reserved, planes, bits, size, offset
PNG = b"\x89PNG\r\n\x1a\n"


def pictures(content):
    """The width and the bytes of each picture."""
    count = HEADER.unpack_from(content)[2]
    for index in range(count):
        entry = ENTRY.unpack_from(content, HEADER.size + index * ENTRY.size)
        width, size, offset = entry[0] or 256, entry[6], entry[7]  # a byte has no room for 256
        picture = content[offset : offset + size]
        if not picture.startswith(PNG):
            sys.exit(f"the picture of width {width} is no PNG")
        yield width, picture


def main(icon, directory, name):
    for width, picture in pictures(pathlib.Path(icon).read_bytes()):
        folder = pathlib.Path(directory) / f"{width}x{width}" / "apps"
        folder.mkdir(parents=True, exist_ok=True)
        (folder / f"{name}.png").write_bytes(picture)


if __name__ == "__main__":
    main(*sys.argv[1:])
