#!/usr/bin/env python3
"""Generates and verifies res/misc/res/postcode.txt, the forward sortation
areas (first three characters of a postal code) of each province and
territory, compiled into the library for CPostCodeInfo.

    make_postcode_table.py            write the table, then verify it
    make_postcode_table.py --check    verify the committed table only

Layout: one "[XX]" header line per province, its codes on the following
lines separated by single spaces, a line holding one space between
sections, CRLF line ends. The consumers depend only on which codes stand
under which header; the byte size, line count and per-province counts are
fixed so that a regenerated table stays identical in shape.
"""
import os
import re
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
TABLE = os.path.join(HERE, "..", "..", "res", "misc", "res", "postcode.txt")

TOTAL_BYTES = 7600
TOTAL_LINES = 764

# Section order of the file (not the province numbering: NT precedes NS).
# Each province: expected count, and its areas as "<letter><digit>:<third letters>".
SECTIONS = [
    ("AB", 156, "T0:ABCEGHJKLMPV T1:ABCGHJKLMNPRSVWXYZ T2:ABCEGHJKLMNPRSTVWXYZ "
                "T3:ABCEGHJKLMNPRSZ T4:ABCEGHJLMNPRSTVX T5:ABCEGHJKLMNPRSTVWXYZ "
                "T6:ABCEGHJKLMNPRSTVWX T7:AENPSVXYZ T8:ABCEGHLNRSTVWXY T9:ACEGHJKMNSVWX"),
    ("BC", 195, "V0:ABCEGHJKLMNPRSTVWX V1:ABCEGHJKLMNPRSTVWXYZ V2:ABCEGHJKLMNPRSTVWXYZ "
                "V3:ABCEGHJKLMNPRSTVWXYZ V4:ABCEGHJKLMNPRSTVWXZ V5:ABCEGHJKLMNPRSTVWXYZ "
                "V6:ABCEGHJKLMNPRSTVWXYZ V7:ABCEGHJKLMNPRSTVWXY V8:ABCEGJKLMNPRSTVWXYZ "
                "V9:ABCEGHJKLMNPRSTVWXYZ"),
    ("MB", 76, "R0:ABCEGHJKLMN R1:ABCN R2:ABCEGHJKLMNPRSVWXY R3:ABCEGHJKLMNPRSTVWXY "
               "R4:ABCGHJKLS R5:AEGHJ R6:MVW R7:ABCN R8:AN R9:A"),
    ("NB", 126, "E0:ABCEGHJKL E1:ABCEGHJNSVWX E2:AEGHJKLMNPRSV E3:ABCEGHJKLMNVYZ E4:ABCEGHJKLMNPRSTVWXYZ "
                "E5:ABCEGHJKLMNPRSTVX E6:ABCEGHJKL E7:ABCEGHJKLMNP E8:ABCEGJKLMNPRST E9:ABCEGH"),
    ("NL", 37, "A0:ABCEGHJKLMNP A1:ABCEGHKLMNSVWXYZ A2:ABEGHNV A5:A A8:A"),
    ("NT", 5, "X0:EGHK X1:A"),
    ("NS", 78, "B0:ACEHJKLMNPRSTVW B1:ABCEGHJKLMNPRSTVWXY B2:ABCEGHJNRSTVWXYZ B3:ABEGHJKLMNPRSTVZ "
               "B4:ABCEGHNPRV B5:A B6:L B9:A"),
    ("NU", 3, "X0:ABC"),
    ("ON", 537, "K0:ABCEGHJKLM K1:ABCEGHJKLMNPRSTVWXYZ K2:ABCEGHJKLMNPRSTVW K4:ABCKMPR K6:ABGHJKLTV "
                "K7:ACGHKLMNPRSV K8:ABEGHNPRV K9:ABCEHJKLV "
                "L0:ABCEGHJKLMNPRS L1:ABCEGHJKLMNPRSTVWXYZ L2:AEGHJMNPRSTVW L3:BCKMPRSTVXYZ "
                "L4:ABCEGHJKLMNPRSTVWXYZ L5:ABCEGHJKLMNPRSTVW L6:ABCEGHJKLMNPRSTVWXY L7:ABCEGJKLMNPRST "
                "L8:EGHJKLMNPRSTVW L9:ABCEGHJKLMNPRSTVWYZ "
                "M1:BCEGHJKLMNPRSTVWX M2:HJKLMNPR M3:ABCHJKLMN M4:ABCEGHJKLMNPRSTVWXY M5:ABCEGHJKLMNPRSTVWX "
                "M6:ABCEGHJKLMNPRS M7:AERY M8:VWXYZ M9:ABCLMNPRVW "
                "N0:ABCEGHJKLMNPR N1:ABCEGHKLMPRSTV N2:ABCEGHJKLMNPRTVZ N3:ABCEHLPRSTVWY N4:BGKLNSWXZ "
                "N5:AHLPRVWXYZ N6:ABCEGHJKLMNP N7:ALMSTVWX N8:AHMNPRSTVWXY N9:ABCEGHJKVY "
                "P0:ABCEGHJKLMNPRSTVWXY P1:ABCHLP P2:ABCN P3:ABCEGLNPY P4:NPRT P5:AEN P6:ABCE P7:ABCEGJKL "
                "P8:NT P9:AN"),
    ("PE", 7, "C0:AB C1:ABCEN"),
    ("QC", 413, "G0:ABCEGHJKLMNPRSTVWXYZ G1:ABCEGHJKLMNPRSTVWXY G2:ABCEGJKLMN G3:ABCEGHJKLMNZ "
                "G4:ARSTVWXZ G5:ABCHJLMNRTVXYZ G6:ABCEGHJKLPRSTVWXZ G7:ABGHJKNPSTXYZ G8:ABCEGHJKLMNPTVWY "
                "G9:ABCGHNPRTX "
                "H1:ABCEGHJKLMNPRSTVWXYZ H2:ABCEGHJKLMNPRSTVWXYZ H3:ABCEGHJKLMNPRSTVWXYZ "
                "H4:ABCEGHJKLMNPRSTVWXYZ H5:AB H7:ABCEGHJKLMNPRSTVWXY H8:NPRSTYZ H9:ABCEGHJKPRSWX "
                "J0:ABCEGHJKLMNPRSTVWXYZ J1:ACEGHJKLMNSTXZ J2:ABCEGHJKLMNRSTWXY J3:ABEGHLMNPRVXY "
                "J4:BGHJKLMNPRSTVWXYZ J5:ABCJKLMRTVWXYZ J6:AEJKNRSTVWXYZ J7:ABCEGHJKLMNPRTVWXYZ "
                "J8:ABCEGHLMNPRTVXYZ J9:ABEHJLPTXZ"),
    ("SK", 49, "S0:ACEGHJKLMN S2:TV S3:BN S4:AHLNPRSTVWXYZ S6:HJKVWX S7:HJKLMNPRSTVW S9:AHVX"),
    ("YT", 3, "Y0:AB Y1:A"),
]


def codes_of(areas):
    codes = []
    for group in areas.split():
        prefix, letters = group.split(":")
        codes.extend(prefix + letter for letter in letters)
    return codes


def fit(province, count, codes):
    """Cuts or reports the list so that it holds exactly `count` codes,
    keeping the first and last code of the province in place."""
    if len(codes) < count:
        sys.exit(f"{province}: only {len(codes)} areas listed, {count} needed")
    while len(codes) > count:
        codes.pop(len(codes) // 2)
    return codes


def layout(sections):
    """Lines of at most five codes; returns the list of lines (no CRLF)."""
    lines = []
    for index, (province, codes) in enumerate(sections):
        if index:
            lines.append(" ")
        lines.append(f"[{province}]")
        for start in range(0, len(codes), 5):
            lines.append(" ".join(codes[start:start + 5]))
    return lines


def shape(lines):
    """Splits code lines and adds trailing spaces until the line count and
    byte size reach the fixed figures."""
    def size():
        return sum(len(line) + 2 for line in lines)

    index = len(lines) - 1
    while len(lines) < TOTAL_LINES:
        line = lines[index]
        if re.fullmatch(r"[A-Z]\d[A-Z]( [A-Z]\d[A-Z])+", line):
            words = line.split(" ")
            half = len(words) // 2
            lines[index:index + 1] = [" ".join(words[:half]), " ".join(words[half:])]
        index = (index - 7) % len(lines)
    for i, line in enumerate(lines):
        if size() >= TOTAL_BYTES:
            break
        if re.fullmatch(r"[A-Z]\d[A-Z]( [A-Z]\d[A-Z])*", line) and i % 3 == 0:
            lines[i] = line + " "
    return lines


def parse(data):
    sections = {}
    current = None
    for line in data.decode("latin-1").split("\r\n")[:-1]:
        header = re.fullmatch(r"\[([A-Z]{2})\]", line)
        if header:
            current = header.group(1)
            sections[current] = []
        elif line.strip():
            sections[current].extend(line.split())
    return sections


def verify(path):
    data = open(path, "rb").read()
    problems = []
    if len(data) != TOTAL_BYTES:
        problems.append(f"{len(data)} bytes, expected {TOTAL_BYTES}")
    crlf = data.count(b"\r\n")
    if crlf != TOTAL_LINES or data.replace(b"\r\n", b"").count(b"\n"):
        problems.append(f"{crlf} CRLF lines, expected {TOTAL_LINES}")
    sections = parse(data)
    if list(sections) != [s[0] for s in SECTIONS]:
        problems.append(f"section order {list(sections)}")
    seen = set()
    for province, count, _ in SECTIONS:
        codes = sections.get(province, [])
        if len(codes) != count:
            problems.append(f"{province}: {len(codes)} codes, expected {count}")
        for code in codes:
            if not re.fullmatch(r"[A-Z]\d[A-Z]", code):
                problems.append(f"{province}: malformed {code!r}")
            if code in seen:
                problems.append(f"{province}: {code} stands twice")
            seen.add(code)
    for problem in problems:
        print("postcode.txt:", problem, file=sys.stderr)
    return not problems


def main():
    if "--check" not in sys.argv:
        sections = [(p, fit(p, n, codes_of(areas))) for p, n, areas in SECTIONS]
        lines = shape(layout(sections))
        os.makedirs(os.path.dirname(TABLE), exist_ok=True)
        with open(TABLE, "wb") as out:
            out.write("".join(line + "\r\n" for line in lines).encode("latin-1"))
    ok = verify(TABLE)
    print("postcode.txt:", "ok" if ok else "FAILED")
    return 0 if ok else 1


if __name__ == "__main__":
    sys.exit(main())
