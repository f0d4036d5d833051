"""What bench/run is made of: the display, the programs on it, the rows and their table."""
