#!/usr/bin/python3
"""Prints what a workbook holds, as JSON, for the export tests: per sheet its name, size and
the cells of its first rows with their kinds; the chart parts with their series count, marker
and axis bounds."""
import json
import re
import sys
import zipfile

import openpyxl


def kind(value):
    if value is None:
        return None
    return type(value).__name__


def main(path, rows_to_show):
    book = openpyxl.load_workbook(path)
    out = {"sheets": []}
    for sheet in book.worksheets:
        cells = []
        for row in sheet.iter_rows(min_row=1, max_row=rows_to_show):
            cells.append([[str(c.value) if c.value is not None else None, kind(c.value)]
                          for c in row])
        out["sheets"].append({"name": sheet.title, "rows": sheet.max_row,
                              "columns": sheet.max_column, "cells": cells})
    charts = []
    with zipfile.ZipFile(path) as z:
        for name in sorted(z.namelist()):
            if not re.match(r"xl/charts/chart\d+\.xml$", name):
                continue
            xml = z.read(name).decode("utf-8")
            val_ax = xml[xml.find("<c:valAx>"):]
            charts.append({
                "part": name,
                "line": "<c:lineChart>" in xml,
                "series": xml.count("<c:ser>"),
                "markers": len(re.findall(r'<c:marker><c:symbol val="(?!none)', xml)),
                "min": re.search(r'<c:min val="([^"]+)"', val_ax).group(1)
                if '<c:min val="' in val_ax else None,
                "max": re.search(r'<c:max val="([^"]+)"', val_ax).group(1)
                if '<c:max val="' in val_ax else None,
            })
    out["charts"] = charts
    print(json.dumps(out))


if __name__ == "__main__":
    main(sys.argv[1], int(sys.argv[2]) if len(sys.argv) > 2 else 3)
