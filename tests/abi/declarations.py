"""What the exported headers declare, as clang reads them for one binary interface."""

import json
import subprocess

LINUX = "x86_64-pc-linux-gnu"
WINDOWS = "x86_64-pc-windows-msvc"


class Declarations:
    def __init__(self):
        self.classes = {}  # qualified name: whether it is polymorphic
        self.fields = {}  # qualified name of a class: its public data
        self.enumerations = {}  # qualified name: [qualified name of an enumerator]
        self.functions = []  # Function
        self.namespaces = set()


class Function:
    def __init__(self, node, scope):
        self.scope = scope
        self.name = node["name"]
        self.mangled = node.get("mangledName", "")
        # What the library must define: not what headers define, default or delete.
        self.is_exported = not (
            node.get("pure")
            or node.get("isImplicit")
            or "explicitlyDefaulted" in node
            or node.get("explicitlyDeleted")
            or any(child.get("kind") == "CompoundStmt" for child in node.get("inner", []))
        )


FUNCTIONS = ("FunctionDecl", "CXXMethodDecl", "CXXConstructorDecl", "CXXDestructorDecl",
             "CXXConversionDecl")


def names_in(path):
    """The lines of a list of names."""
    with open(path, encoding="utf-8") as file:
        return [line for line in file.read().split("\n") if line and not line.startswith("#")]


def run(command, text=None):
    return subprocess.run(command, input=text, check=True, stdout=subprocess.PIPE, text=True).stdout


def dump(clang, target, roots, option, source=""):
    """What clang shows by `option` of all headers, found in the folders `roots`, and `source`."""
    command = [clang, "--target=" + target, "-std=c++11", "-w", "-fsyntax-only", "-Xclang", option,
               *("-I" + root for root in roots), "-x", "c++", "-"]
    return run(command, '#include "kv_engine.h"\n' + source)


def read(clang, target, roots):
    declarations = Declarations()
    for node in json.loads(dump(clang, target, roots, "-ast-dump=json"))["inner"]:
        if node.get("name") == "Korvane":
            declarations.namespaces.add("Korvane")
            collect(declarations, node, "Korvane")
    return declarations


def collect(declarations, node, scope):
    is_class = node["kind"] == "CXXRecordDecl"
    access = "public" if node.get("tagUsed") == "struct" else "private"
    for child in node.get("inner", []):
        kind = child.get("kind")
        name = scope + "::" + child.get("name", "")
        if kind == "AccessSpecDecl":
            access = child["access"]
        elif kind == "NamespaceDecl":
            declarations.namespaces.add(name)
            collect(declarations, child, name)
        elif kind == "CXXRecordDecl" and child.get("completeDefinition"):
            declarations.classes[name] = child["definitionData"].get("isPolymorphic", False)
            declarations.fields[name] = []
            collect(declarations, child, name)
        elif kind == "EnumDecl":
            declarations.enumerations[name] = [
                scope + "::" + constant["name"]
                for constant in child.get("inner", []) if constant["kind"] == "EnumConstantDecl"
            ]
        elif kind == "FieldDecl" and is_class and access == "public":
            declarations.fields[scope].append(child["name"])
        elif kind in FUNCTIONS:
            declarations.functions.append(Function(child, scope))
