#!/usr/bin/env python3
"""Makes the documentation as a site that needs no network, in FOLDER: the pages of docs/ and the reference of the headers.

    make_docs.py FOLDER HEADERS VERSION

HEADERS is a file that lists the public headers. Needs markdown-it-py, mdit-py-plugins, Pygments and Doxygen. Faults are
links that lead nowhere, pages that are not in the list below, and what Doxygen warns of.
"""
import html
import os
import posixpath
import re
import shutil
import subprocess
import sys
from html.parser import HTMLParser

from markdown_it import MarkdownIt
from mdit_py_plugins.anchors import anchors_plugin
from pygments import highlight
from pygments.formatters import HtmlFormatter
from pygments.lexers import get_lexer_by_name
from pygments.token import Comment, Keyword, Number, String
from pygments.util import ClassNotFound

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))

# The list beside every page.
PAGES = [
    ("Begin", ["README.md", "docs/tutorial.md", "docs/using-queries.md", "docs/workbench.md",
               "docs/command-line.md"]),
    ("In your program", ["docs/embedding.md", "docs/databases.md", "docs/ui.md", "docs/designer.md", "docs/import.md",
                         "docs/translations.md"]),
    ("File formats", ["docs/model-text.md", "docs/model-xml.md", "docs/query-text.md"]),
    ("About Tolvi", ["docs/stability.md", "docs/architecture.md", "docs/benchmarks.md", "CONTRIBUTING.md", "CHANGELOG.md",
                     "samples/shop/README.md"]),
]
COLOURED = [(Keyword, "k"), (String, "s"), (Comment, "c"), (Number, "m")]


class PlainFormatter(HtmlFormatter):
    """Four classes of words are enough."""

    def _get_css_class(self, token):
        return next((name for kind, name in COLOURED if token in kind), "")


def coloured(code, language, _attributes):
    try:
        return highlight(code, get_lexer_by_name(language, stripnl=False), PlainFormatter(nowrap=True)) if language else ""
    except ClassNotFound:
        return ""


def slug(heading):
    """As the forges make it, so that links work there, too."""
    return re.sub(r"[^\w\- ]", "", heading.lower()).replace(" ", "-")


def site_path(page):
    return "index.html" if page == "README.md" else page[:-3] + ".html"


def title_of(text):
    return next(line[2:] for line in text.splitlines() if line.startswith("# ")).replace("`", "")


class Site:
    def __init__(self, folder, version):
        self.folder, self.version, self.faults = folder, version, []
        listed = [page for _, pages in PAGES for page in pages]
        self.texts = {}
        for page in listed:
            if not os.path.exists(os.path.join(ROOT, page)):
                self.faults.append(f"{page}: in the list of pages of tools/make_docs.py, but there is none")
                continue
            with open(os.path.join(ROOT, page), encoding="utf-8") as file:
                self.texts[page] = file.read()
        for name in sorted(os.listdir(os.path.join(ROOT, "docs"))):
            if name.endswith(".md") and "docs/" + name not in listed:
                self.faults.append(f"docs/{name}: not in the list of pages of tools/make_docs.py")
        self.markdown = MarkdownIt("commonmark", {"highlight": coloured}).enable("table").use(anchors_plugin, max_level=4,
                                                                                              slug_func=slug)

    def write(self, path, text):
        path = os.path.join(self.folder, path)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "w", encoding="utf-8") as file:
            file.write(text)

    def navigation(self, here):
        def link(target, caption):
            path = posixpath.relpath(target, posixpath.dirname(site_path(here)) or ".")
            mark = ' class="here" aria-current="page"' if target == site_path(here) else ""
            return f'<li><a href="{path}"{mark}>{html.escape(caption)}</a></li>'

        home = posixpath.relpath("index.html", posixpath.dirname(site_path(here)) or ".")
        icon = posixpath.relpath("tolvi.svg", posixpath.dirname(site_path(here)) or ".")
        parts = [f'<a class="home" href="{home}"><img src="{icon}" width="32" height="32" alt="">Tolvi {self.version}</a>']
        for group, pages in PAGES:
            items = [link(site_path(page), title_of(self.texts[page])) for page in pages if page in self.texts]
            if group == "In your program":
                items.append(link("api/annotated.html", "Reference of the classes"))
                items.append(link("api/files.html", "Reference of the headers"))
            parts.append(f"<h2>{group}</h2><ul>{''.join(items)}</ul>")
        return f"<nav><div>{''.join(parts)}</div></nav>"

    def render(self, page):
        tokens = self.markdown.parse(self.texts[page])
        for token in tokens:
            for child in token.children or []:
                for name in ("href", "src"):
                    if name in child.attrs:
                        child.attrs[name] = self.target(page, child.attrs[name])
        body = self.markdown.renderer.render(tokens, self.markdown.options, {})
        style = posixpath.relpath("style.css", posixpath.dirname(site_path(page)) or ".")
        icon = posixpath.relpath("tolvi.svg", posixpath.dirname(site_path(page)) or ".")
        title = title_of(self.texts[page])
        self.write(site_path(page), f'<!DOCTYPE html>\n<html lang="en"><head><meta charset="utf-8">'
                   f'<meta name="viewport" content="width=device-width, initial-scale=1"><title>{html.escape(title)} - Tolvi'
                   f'</title><link rel="icon" href="{icon}"><link rel="stylesheet" href="{style}"></head>'
                   f"<body>{self.navigation(page)}<main>{body}</main></body></html>\n")

    def target(self, page, link):
        """The link as the site has it. Files that are no pages are copied to the site."""
        path, mark, anchor = link.partition("#")
        if "://" in link or not path:
            return link
        source = posixpath.normpath(posixpath.join(posixpath.dirname(page), path))
        if source in self.texts:
            return posixpath.relpath(site_path(source), posixpath.dirname(site_path(page)) or ".") + mark + anchor
        if os.path.isfile(os.path.join(ROOT, source)):
            copy = os.path.join(self.folder, source)
            os.makedirs(os.path.dirname(copy), exist_ok=True)
            shutil.copyfile(os.path.join(ROOT, source), copy)
        return link

    def reference(self, headers):
        """Runs Doxygen, whose exit status tells of warnings."""
        include = os.path.join(self.folder, "include")
        os.makedirs(include, exist_ok=True)
        if not os.path.islink(os.path.join(include, "tolvi")):
            os.symlink(os.path.join(ROOT, "src"), os.path.join(include, "tolvi"))
        with open(os.path.join(ROOT, "docs/site/Doxyfile"), encoding="utf-8") as file:
            settings = file.read().replace("build/docs/include", include)
        inputs = " ".join(os.path.join(include, "tolvi", os.path.relpath(header, "src")) for header in headers)
        settings += f"\nINPUT = {inputs}\nOUTPUT_DIRECTORY = {self.folder}\nPROJECT_NUMBER = {self.version}\n"
        done = subprocess.run(["doxygen", "-"], input=settings, cwd=ROOT, capture_output=True, encoding="utf-8", check=False)
        os.unlink(os.path.join(include, "tolvi"))
        os.rmdir(include)
        if done.returncode != 0:
            self.faults += (done.stderr or f"doxygen ended with status {done.returncode}").splitlines()


class Links(HTMLParser):
    def __init__(self, path):
        super().__init__()
        self.anchors, self.links = set(), []
        with open(path, encoding="utf-8") as file:
            self.feed(file.read())

    def handle_starttag(self, tag, attrs):
        for name, value in attrs:
            if value and (name == "id" or (name == "name" and tag == "a")):
                self.anchors.add(value)
            elif value and name in ("href", "src") and "://" not in value and not value.startswith(("javascript:", "data:")):
                self.links.append(value)


def dead_links(folder):
    pages = {}
    for directory, _, names in os.walk(folder):
        for name in sorted(names):
            if name.endswith(".html"):
                pages[os.path.join(directory, name)] = Links(os.path.join(directory, name))
    for path, page in pages.items():
        for link in page.links:
            target, _, anchor = link.partition("#")
            file = os.path.normpath(os.path.join(os.path.dirname(path), target)) if target else path
            # Doxygen's own pages name parts of themselves that it leaves out.
            known = not anchor or file not in pages or path.startswith(os.path.join(folder, "api")) or anchor in pages[file].anchors
            if not os.path.exists(file) or not known:
                yield f"{os.path.relpath(path, folder)}: the link {link} leads nowhere"


def main(arguments):
    if len(arguments) != 3:
        sys.exit(__doc__)
    folder, header_list, version = os.path.abspath(arguments[0]), arguments[1], arguments[2]
    with open(header_list, encoding="utf-8") as file:
        headers = [os.path.relpath(line.strip(), ROOT) for line in file if line.strip()]
    shutil.rmtree(folder, ignore_errors=True)
    os.makedirs(folder)
    site = Site(folder, version)
    shutil.copyfile(os.path.join(ROOT, "docs/site/style.css"), os.path.join(folder, "style.css"))
    shutil.copyfile(os.path.join(ROOT, "share/tolvi-workbench.svg"), os.path.join(folder, "tolvi.svg"))
    for page in site.texts:
        site.render(page)
    site.reference(headers)
    faults = site.faults + list(dead_links(folder))
    for fault in faults:
        print(fault)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
