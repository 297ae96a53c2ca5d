"""For GDB: names the class of an expression, when a printer shows it."""

import gdb
import gdb.types


def shown_class(expression):
    value = gdb.parse_and_eval(expression)
    if gdb.default_visualizer(value) is not None:
        print("shown class", gdb.types.get_basic_type(value.type).name)
