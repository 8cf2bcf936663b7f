#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Sets the translation of every text in an English catalogue to the text itself.

    tools/fill_english.py resources/languages/lan_en_us.ts

The program loads the English catalogue like any other, and an empty catalogue does not load.
"""
import re
import sys

path = sys.argv[1]
with open(path, encoding="utf-8") as file:
    catalogue = file.read()
catalogue, count = re.subn(
    r"(<source>)(.*?)(</source>)(.*?)<translation[^>]*?(?:/>|>.*?</translation>)",
    r"\1\2\3\4<translation>\2</translation>", catalogue, flags=re.DOTALL)
with open(path, "w", encoding="utf-8") as file:
    file.write(catalogue)
print(f"{path}: {count} texts")
