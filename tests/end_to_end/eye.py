"""What is seen on the virtual screen: its picture, read from where the X server keeps it."""

import os
import struct

import numpy
from PIL import Image


class Eye:
    """Looks at a screen whose picture lies in a folder."""

    def __init__(self, folder):
        self._file = os.path.join(folder, "Xvfb_screen0")
        with open(self._file, "rb") as file:
            header = struct.unpack(">25I", file.read(100))
        size, self._width, self._height = header[0], header[4], header[5]
        self._line, colours = header[12], header[19]
        pixels = numpy.memmap(self._file, dtype=numpy.uint8, mode="r", offset=size + 12 * colours)
        whole = pixels[: self._line * self._height].reshape(self._height, self._line)
        self._now = whole[:, : self._width * 4].reshape(self._height, self._width, 4)

    def look(self):
        """The screen as it is: rows of pixels of red, green and blue."""
        return self._now[:, :, 2::-1].copy()

    def save(self, file, picture=None):
        Image.fromarray(self.look() if picture is None else picture).save(file)


def region(picture, rectangle, inset=0):
    left, top, width, height = rectangle
    return picture[top + inset : top + height - inset, left + inset : left + width - inset]


def distance_to(pixels, colour):
    """How far each pixel is from a colour: the largest of the three differences."""
    return numpy.abs(pixels.astype(numpy.int16) - numpy.array(colour, dtype=numpy.int16)).max(axis=2)


def share_of(pixels, colour, tolerance=2):
    """How much of a region has a colour, 0 to 1."""
    if pixels.size == 0:
        return 0.0
    return float((distance_to(pixels, colour) <= tolerance).mean())
