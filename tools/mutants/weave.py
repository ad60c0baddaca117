#!/usr/bin/env python3
"""Shows the mutants of one source: weave.py FILE lists them, weave.py FILE NUMBER... prints the source with these."""
import sys
from pathlib import Path

from places import places_of, woven

if __name__ == '__main__':
    name = sys.argv[1]
    text = Path(name).read_text()
    numbered = list(enumerate(places_of(name, text), 1))
    if len(sys.argv) > 2:
        chosen = set(map(int, sys.argv[2:]))
        print(woven(text, [pair for pair in numbered if pair[0] in chosen]), end='')
    else:
        for number, place in numbered:
            print(number, f'line {place.line}', place.kind, ' '.join(place.original.split()), '>',
                  place.changed or '(not called)')
