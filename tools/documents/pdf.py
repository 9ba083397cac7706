"""From HTML to PDF, the same bytes for the same sources."""
import logging
import sys
from pathlib import Path

from weasyprint import HTML


class _Complaints(logging.Handler):
    """Keeps what the renderer complains about: a missing picture is an error here."""

    def __init__(self):
        super().__init__(logging.WARNING)
        self.texts = []

    def emit(self, record):
        self.texts.append(record.getMessage())


def write_pdf(html, base, output):
    """Renders `html`, whose addresses are relative to the folder `base`, to the file `output`.

    Ends the program where anything is missing or not understood.
    """
    complaints = _Complaints()
    logger = logging.getLogger("weasyprint")
    logger.handlers = [complaints]
    document = HTML(string=html, base_url=f"{Path(base).resolve()}/").render()
    # No date is written: the documents belong to a version, not to a day.
    content = document.write_pdf()
    if complaints.texts:
        sys.exit("\n".join(f"{output}: {text}" for text in complaints.texts))
    Path(output).write_bytes(content)
