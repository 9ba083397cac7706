"""Libraries that a test puts before the C library of what it starts."""

import os


def preloadable(library, folder):
    """The path of a library for LD_PRELOAD: a link in `folder`, for the loader parts what stands
    there at blanks, and the library may have been built below a folder with some."""
    link = os.path.join(folder, os.path.basename(library))
    os.symlink(library, link)
    return link
