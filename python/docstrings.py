#!/usr/bin/env python3
"""docstrings.py OUTPUT.cpp INCLUDE_FOLDER...: the comments of the exported headers as a C++ table of docstrings,
and the enumerators with their values and comments, so that neither stands twice.

A comment belongs to the declaration under it, to the further overloads of that name, and to those that follow
without a blank line and give the same type. The first comment of a header is that of its class. Sentences on
what Python has no like of (how long a pointer is valid, what is const) are left out, and null is None."""

import pathlib
import re
import sys
import textwrap

# Namespaces that are no part of a Python name.
PLAIN_NAMESPACES = {"Korvane", "Media", "Memory", "Logging", "Utils", "Detail"}

# Whole sentences, and ends of sentences, that speak of C++ alone.
CPP_SENTENCES = [
    r"(Otherwise v|V)alid (until|as long)\b.*",
    r"(The result|All texts) (stays|are) valid until\b.*",
    r"(The getter is )?[Pp]ublished (const|with|without)\b.*",
    r"Otherwise the getter gives a pointer .*",
    r"Moving copies\.",
    r"One instance is not synchronised, .*",
    r'(Raises|A null one raises) InvalidArgument "Text must not be null"\.',
    r"Though const, it writes into the object: .*",
    r"Narrow text is UTF-8, wide text UTF-16 .*",
    r"The wide form also raises .*",
]
CPP_ENDS = [
    r", (and )?otherwise valid until [^.]*",
    r": they change the descriptor all the same",
    r", called with `context` and a text that is valid during the call",
]


def for_python(text):
    """`text` without what speaks of C++ alone."""
    sentences = re.split(r"(?<=[.!?])\s+(?=[A-Z\"])", text)
    kept = [s for s in sentences if not any(re.fullmatch(p, s) for p in CPP_SENTENCES)]
    text = " ".join(kept)
    for pattern in CPP_ENDS:
        text = re.sub(pattern, "", text)
    # Not in the quoted texts of errors.
    parts = text.split('"')
    parts[::2] = [re.sub(r"\b[Nn]ull\b", "None", part) for part in parts[::2]]
    return '"'.join(parts)


def docstring(comment):
    """The lines of a comment as paragraphs; what is indented (tables, examples) stays as it is."""
    paragraphs = []
    for paragraph in re.split(r"\n\s*\n", "\n".join(comment)):
        if re.search(r"^ {2,}\S|^ +\d|^\s*\S+;$", paragraph, re.M):
            lead, _, table = paragraph.partition("\n  ")
            table = "  " + table if table else ""
            if table and not lead.startswith(" "):
                lead = textwrap.fill(for_python(" ".join(lead.split())), 88)
            paragraphs.append("\n".join(p for p in (lead, table) if p))
        else:
            filtered = for_python(" ".join(paragraph.split()))
            if filtered:
                paragraphs.append(textwrap.fill(filtered, 88))
    return "\n\n".join(paragraphs).strip()


class Header:
    """Walks one header; what it finds goes into `docs` and `enumerators`."""

    def __init__(self, docs, enumerators):
        self.docs = docs
        self.enumerators = enumerators
        self.scopes = []  # (kind, name); kinds: namespace, class, enum, other
        self.file_comment = None
        self.comment = []
        self.shared = None  # (comment, name, type) of the declaration before, for the one after it
        self.hidden = False

    def qualified(self, name):
        path = [n for kind, n in self.scopes if n and not (kind == "namespace" and n in PLAIN_NAMESPACES)]
        return ".".join([*path, name])

    def add(self, key, comment):
        text = docstring(comment) if comment else ""
        known = self.docs.setdefault(key, [])
        if text and text not in known:
            known.append(text)

    def read(self, lines):
        statement = ""
        for line in lines:
            line = line.strip()
            if line.startswith("//"):
                self.comment.append(re.sub(r"^//[/!]? ?", "", line))
                continue
            if not line:
                if self.file_comment is None:
                    self.file_comment = self.comment
                self.comment, self.shared = [], None
                continue
            if line.startswith("#"):
                continue
            code, _, trailing = line.partition("  //")
            trailing = re.sub(r"NOLINT\S*", "", trailing).strip()
            statement = f"{statement} {code.strip()}".strip()
            if re.search(r"[;{}]$|^(public|private|protected):$", statement) or self.in_enum():
                self.statement(statement, trailing)
                statement, self.comment = "", []

    def in_enum(self):
        return bool(self.scopes) and self.scopes[-1][0] == "enum"

    def statement(self, code, trailing):
        code = re.sub(r"\bKV_(ENGINE|CORE)_API |KV_ENGINE_PRIVATE_MEMBER ", "", code)
        if match := re.match(r"namespace (\w+) \{", code):
            self.scopes.append(("namespace", match[1]))
            if match[1] not in PLAIN_NAMESPACES:
                self.add(self.qualified("__doc__"), self.file_comment)
        elif match := re.match(r"(?:class|struct) (\w+)(?: : public \w+)? \{", code):
            self.scopes.append(("class", match[1]))
            self.hidden = False
            comment = self.comment or (self.file_comment if self.is_outermost() else [])
            self.add(self.qualified("__doc__"), comment)
        elif match := re.match(r"enum (\w+) : unsigned int \{(\};)?", code):
            key = self.qualified(match[1])
            self.enumerators.setdefault(key, [])
            self.add(key + ".__doc__", self.comment or self.file_comment)
            if not match[2]:
                self.scopes.append(("enum", match[1]))
        elif code.startswith("}"):
            self.scopes.pop()
        elif code.endswith("{"):
            self.scopes.append(("other", ""))
        elif code in ("public:", "private:", "protected:"):
            self.hidden = code != "public:"
        elif self.in_enum():
            self.enumerator(code, trailing)
        elif self.scopes and self.scopes[-1][0] != "other" and not self.hidden:
            self.declaration(code, trailing)

    def is_outermost(self):
        return sum(kind == "class" for kind, _ in self.scopes) == 1

    def enumerator(self, code, trailing):
        match = re.match(r"(\w+) = (\d+),?$", code)
        if not match:
            raise ValueError(f"an enumerator without a value: {code}")
        key = self.qualified("")[:-1]
        self.enumerators[key].append((match[1], int(match[2]), docstring([trailing])))

    def declaration(self, code, trailing):
        if re.match(r"(class|struct|using|static_assert|template|friend)\b", code) or "operator" in code:
            return
        code = re.sub(r"^KV_ENGINE_SLOTS\(", "", code)
        code = re.sub(r"^(virtual|static|explicit) ", "", code)
        match = re.match(r"((?:[\w:]+[ *&]+)*?)(~?\w+)(\(|;)", code)
        if not match or match[2].startswith("~"):
            return
        result, name = match[1].replace("const ", "").strip(), match[2]
        if self.scopes[-1][1] == name:
            name = "__init__"
        comment = self.comment or ([trailing] if trailing else [])
        if not comment and self.shared and (name == self.shared[1] or result == self.shared[2]):
            comment = self.shared[0]
        self.shared = (comment, name, result) if comment else None
        self.add(self.qualified(name), comment)


def literal(text):
    escaped = text.replace("\\", "\\\\").replace('"', '\\"')
    return " ".join(f'"{line}"' for line in escaped.replace("\n", "\\n\n").split("\n")) or '""'


def exported_headers(folder):
    """Without the companion headers, which are C++ that Python has of its own."""
    return sorted(path for path in folder.glob("*/*.h") if path.parent.name != "ext")


def main():
    output, *folders = map(pathlib.Path, sys.argv[1:])
    docs, enumerators = {}, {}
    for path in (path for folder in folders for path in exported_headers(folder)):
        Header(docs, enumerators).read(path.read_text(encoding="utf-8").split("\n"))
    docs = {key: "\n\n".join(texts) for key, texts in docs.items()}
    lines = ['#include "docstrings.h"', "", "namespace Korvane::Python {", "namespace {", ""]
    lines += ["constexpr Docstring kDocstrings[] = {"]
    lines += [f'    {{"{key}", {literal(docs[key])}}},' for key in sorted(docs)]
    lines += ["};", "", "constexpr Enumerator kEnumerators[] = {"]
    for key, members in sorted(enumerators.items()):
        lines += [f'    {{"{key}", "{name}", {value}, {literal(doc)}}},' for name, value, doc in members]
    lines += ["};", "", "}  // namespace", ""]
    lines += ["std::span<const Docstring> docstrings() { return kDocstrings; }"]
    lines += ["std::span<const Enumerator> enumerators() { return kEnumerators; }"]
    lines += ["", "}  // namespace Korvane::Python"]
    output.write_text("\n".join(lines) + "\n", encoding="utf-8")


if __name__ == "__main__":
    main()
