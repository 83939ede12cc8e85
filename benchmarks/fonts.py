"""A system's worth of fonts, each with a family name of its own, made from the one in resources/."""

import pathlib
import subprocess

FONT = pathlib.Path(__file__).parent.parent / "resources" / "DroidSans-Regular.ttf"


def _renamed(font, number):
    """The font with its family's name replaced by another one of the same length."""
    name = f"Font {number:05}"[-10:]
    return font.replace("Droid Sans".encode("utf-16-be"), name.encode("utf-16-be")).replace(b"Droid Sans", name.encode())


def make(folder, count):
    """Makes `count` fonts in the folder, with a fontconfig file that knows no others, and returns that."""
    made = folder / "made"
    made.mkdir()
    original = FONT.read_bytes()
    for number in range(count):
        (made / f"{number}.ttf").write_bytes(_renamed(original, number))
    config = folder / "fonts.conf"
    config.write_text(f'<?xml version="1.0"?><!DOCTYPE fontconfig SYSTEM "fonts.dtd"><fontconfig>'
                      f"<dir>{made}</dir><cachedir>{folder}/cache</cachedir></fontconfig>")
    subprocess.run(["fc-cache", made], env={"FONTCONFIG_FILE": str(config), "PATH": "/usr/bin:/bin"}, check=True)
    return config
