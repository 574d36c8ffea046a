#!/usr/bin/env python3
"""Compares the identity-number checks with those of the stdnum package.

Usage: compara_identidades.py PROGRAM, where PROGRAM reads numbers and prints verdicts. Every difference must
belong to a class explained below; the classes are counted and printed. Exit code 77: stdnum is not installed.
"""

import random
import subprocess
import sys
from collections import Counter

try:
    from stdnum.es import cif, dni, nie, nif
except ImportError:
    print("stdnum is not installed: nothing compared")
    sys.exit(77)

LETTERS = "ABCDEFGHIJKLMNOPQRSTUVWXYZ"
DIGITS = "0123456789"
COUNT = 100_000


def digits(rng, n):
    return "".join(rng.choice(DIGITS) for _ in range(n))


def generate(rng):
    """One number of a random kind, right about half of the time."""
    kind = rng.randrange(7)
    if kind == 0:  # national, eight digits or fewer
        body = digits(rng, rng.choice((8, 8, 8, 7, 6, 5, 1)))
        right = body + dni.calc_check_digit(body)
    elif kind == 1:
        body = rng.choice("KLM") + digits(rng, 7)
        right = body + dni.calc_check_digit(body[1:])
    elif kind == 2:
        body = rng.choice("XYZ") + digits(rng, 7)
        right = body + nie.calc_check_digit(body)
    elif kind in (3, 4):
        body = rng.choice(LETTERS) + digits(rng, 7)
        right = body + rng.choice(cif.calc_check_digits(body))
    elif kind == 5:  # any signs
        return "".join(rng.choice(LETTERS + DIGITS + "-. ") for _ in range(rng.randrange(1, 12)))
    else:  # nearly right: too long, with separators, or in lower case
        body = digits(rng, 8)
        right = body + dni.calc_check_digit(body)
        return rng.choice((right.lower(), "0" + right, body + "-" + right[-1], right + " ", "ES" + right))
    return right if rng.randrange(2) else body + rng.choice(LETTERS + DIGITS)


def theirs(number):
    """What stdnum says: national or K/L/M, foreigner's, company's."""
    personal = nif.is_valid(number) and nif.compact(number)[0] in DIGITS + "KLM"
    return personal, nie.is_valid(number), cif.is_valid(number)


def explain(check, number, ours):
    """The class of a difference, or None when there is no good reason for it."""
    plain = nif.compact(number)
    if not ours and any(c in " -" for c in number):
        return "stdnum passes over blanks and hyphens; here callers take them off"
    if not ours and check == "nif" and number.upper().startswith("ES"):
        return "stdnum takes the prefix ES off"
    if ours and check == "nif" and len(number) < 9 and nif.is_valid(plain.zfill(9)):
        return "fewer than eight digits are padded here"
    if check != "cif":
        return None
    digit_only, letter_only = plain[0] in "ABEH", plain[0] in "KPQSNRW"
    if not ours and digit_only and plain[-1] in LETTERS:
        return "stdnum takes a control letter after A, B, E or H"
    if not ours and letter_only and plain[-1] in DIGITS:
        return "stdnum takes a control digit after P, Q, S, N, R or W"
    if ours and plain[0] == "K" and plain[-1] == cif.calc_check_digits(plain[:-1])[1]:
        return "stdnum knows no company that begins with K"
    return None


def main():
    rng = random.Random(20060102)
    numbers = [generate(rng) for _ in range(COUNT)]
    answer = subprocess.run(
        [sys.argv[1]], input="".join(n + "\n" for n in numbers), capture_output=True, text=True, check=True
    )
    verdicts = answer.stdout.split()
    if len(verdicts) != COUNT:
        print(f"{len(verdicts)} verdicts for {COUNT} numbers")
        return 1
    accepted, classes, unexplained = Counter(), Counter(), []
    for number, verdict in zip(numbers, verdicts):
        for check, ours, other in zip(("nif", "nie", "cif"), (v == "1" for v in verdict), theirs(number)):
            accepted[check] += ours and other
            if ours == other:
                continue
            reason = explain(check, number, ours)
            if reason is None:
                unexplained.append(f"{check} {number!r}: here {ours}, stdnum {other}")
            else:
                classes[f"{check}: {reason}"] += 1
    print("accepted by both:", dict(accepted))
    for reason, times in sorted(classes.items()):
        print(f"{times:6} {reason}")
    for line in unexplained[:20]:
        print("UNEXPLAINED", line)
    # A comparison in which one kind of number hardly occurs compares nothing.
    too_few = [check for check in ("nif", "nie", "cif") if accepted[check] < 1000]
    if too_few:
        print("too few numbers accepted:", too_few)
    return 1 if unexplained or too_few else 0


if __name__ == "__main__":
    sys.exit(main())
