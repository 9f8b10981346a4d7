"""Reads a page of the studies as a browser shows it."""
import subprocess
from html.parser import HTMLParser
from pathlib import Path


class Page(HTMLParser):
    """Texts of the cells of each table, with small print behind a bar; texts of the charts below each heading."""

    def __init__(self, html):
        super().__init__()
        self.tables, self.charts, self.headings = {}, [], {}
        self.cell, self.place, self.inside = None, None, None
        self.feed(html)

    def handle_starttag(self, tag, attrs):
        if tag == "table":
            self.rows = self.tables[dict(attrs)["id"]] = []
        elif tag == "tr":
            self.rows.append([])
        elif tag in ("td", "th"):
            self.rows[-1].append("")
            self.cell = True
        elif tag == "small":
            self.rows[-1][-1] += "|"
        elif tag == "svg":
            self.charts.append([])
        self.inside = tag

    def handle_endtag(self, tag):
        if tag in ("td", "th"):
            self.cell = None
        self.inside = None

    def handle_data(self, data):
        if self.cell:
            self.rows[-1][-1] += data
        elif self.inside == "h2":
            self.place = self.headings[data] = []
        elif self.inside == "text":
            self.charts[-1].append(data)
            if self.place is not None:
                self.place.append(data)


def opened(browser, folder, page):
    """The page as the browser has it after loading."""
    dom = subprocess.run([browser, "--headless", "--no-sandbox", "--disable-gpu", f"--user-data-dir={folder}/profil",
                          "--dump-dom", Path(page).as_uri()], check=True, capture_output=True, timeout=60).stdout
    return Page(dom.decode("utf-8"))


def near(shown, number, decimals):
    return abs(float(shown) - float(number)) <= 0.5 * 10 ** -decimals + 1e-4 * abs(float(number))
