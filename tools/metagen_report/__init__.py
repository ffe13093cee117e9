"""The parts of metagen-report: what it reads, what it found, and the page that it makes of it."""
