"""For GDB, on the library: the natvis names types, casts and members that the debug information knows, and
leaves out no exported class with a private record, and never shows a password.

    gdb -batch -ex 'python arguments = [NATVIS, LAYOUT, CORE LIBRARY]' -x natvis_test.py LIBRARY
"""

import pathlib
import re
import xml.etree.ElementTree as ElementTree

import gdb

# An instance of each template, and its first argument.
INSTANCES = {
    "Korvane::Detail::SoleRecordPtr<*>": "Korvane::TimecodePrivate",
    "Korvane::Detail::RecordPtr<*>": "Korvane::TimecodePrivate",
    "Korvane::ListRecord<*>": "unsigned int",
    "Korvane::Media::OptionalCell<*>": "unsigned int",
    "Korvane::Utils::BaseSharedPtr<*>": "Korvane::Media::IFrame",
}
RECORDS = {"Korvane::Exception": "Korvane::ExceptionState"}  # named otherwise than the rest
NO_MEMBERS = {"int", "unsigned", "char", "void"}
FORMAT = re.compile(r",(en|d|x|s8|nd)$")


def local(element):
    return element.tag.rpartition("}")[2]


def expressions(visualizer):
    """Whatever is evaluated for a type."""
    for element in visualizer.iter():
        if "Condition" in element.attrib:
            yield element.attrib["Condition"]
        text = element.text or ""
        if local(element) == "DisplayString":
            yield from re.findall(r"\{([^{}]*)\}", text)
        elif local(element) in ("Item", "ExpandedItem"):
            yield text


def in_gdb(expression, name, argument):
    """The expression as GDB reads it, of an object of the type at address 0, which is not read."""
    this = f"(({name}*)0)"
    expression = FORMAT.sub("", expression.strip())
    expression = re.sub(r"\bkv_(Engine|Core)_r\.dll!", "", expression).replace("$T1", argument)

    def member(found):
        word = found.group(0)
        if word == "this":
            return this
        return word if "::" in word or word in NO_MEMBERS else f"{this}->{word}"

    return re.sub(r"(?<![\w.>$])[A-Za-z_]\w*(?:::\w+)*", member, expression)


def check_type(visualizer, name):
    argument = INSTANCES.get(name, "")
    instance = name.replace("*", argument) if argument else name
    try:
        gdb.lookup_type(instance)
    except gdb.error as error:
        return [f"{name}: {error}"]
    errors = []
    raw = [element for element in visualizer
           if local(element) == "Expand" and element.get("HideRawView") != "true"]
    if name.startswith("Korvane::Media::InterplayWebService") and raw:
        errors.append(f"{name} shows the password in its raw view")
    for expression in expressions(visualizer):
        if "password" in expression:
            errors.append(f"{name} shows a password")
        try:
            gdb.execute("whatis " + in_gdb(expression, instance, argument), to_string=True)
        except gdb.error as error:
            errors.append(f"{name}: {expression}: {error}")
    return errors


def bases(record):
    for field in record.fields():
        if field.is_base_class:
            yield re.sub(r"<.*>$", "<*>", field.type.name)
            yield from bases(field.type)


def uncovered(names, layout):
    """Exported classes with a record, and their records, that have no visualizer."""
    records = 0
    for name in re.findall(r"struct Class<([\w:]+),", layout.read_text(encoding="utf-8")):
        for record_name in (name + "Private", name + "::Impl", RECORDS.get(name)):
            try:
                record = gdb.lookup_type(record_name or "no record")
            except gdb.error:
                continue
            records += 1
            if name not in names:
                yield f"{name} has no visualizer"
            if not names & {record_name, *bases(record)}:
                yield f"{record_name} has no visualizer"
    if records < 30:
        yield f"only {records} records were found"


def main(natvis, layout, core):
    gdb.execute("set language c++")
    gdb.execute(f"add-symbol-file {core}", to_string=True)
    root = ElementTree.parse(natvis).getroot()
    errors = []
    names = set()
    for visualizer in root:
        own = [visualizer.attrib["Name"]]
        own += [element.attrib["Name"] for element in visualizer
                if local(element) == "AlternativeType"]
        names.update(own)
        for name in own:
            errors += check_type(visualizer, name)
    errors += uncovered(names, pathlib.Path(layout))
    for error in errors:
        print(error)
    print(f"{len(names)} types, {len(errors)} errors")
    gdb.execute(f"quit {1 if errors else 0}")


main(*arguments)  # noqa: F821, set on the command line
