"""The parts of metagen-report: what it reads, what it found, and the page that it makes of it."""

VERSION = "0.1.0"  # metagen's, which a test holds it to
