"""Fills in F168, trapezoidal control, without showing its dialog, and prints the data table. Needs Python alone.

The environment variable PEXLO names the folder of the library.
"""

import ctypes
import os
import sys
from ctypes import byref, c_char, c_char_p, c_int, c_uint, c_void_p, sizeof

if "PEXLO" not in os.environ:
    sys.exit("Set PEXLO to the folder of the library.")
if os.name == "nt":
    library = ctypes.WinDLL(os.path.join(os.environ["PEXLO"], "bin", "Pexlo.dll"))
else:
    library = ctypes.CDLL(os.path.join(os.environ["PEXLO"], "lib", "libpexlo.so"))
library.Pexlo_Create.restype = c_void_p


class Structure(ctypes.Structure):
    """The structures of pexlo.h have their size as first member."""

    def __init__(self, **members):
        super().__init__(size=sizeof(self), **members)


class Form(Structure):
    _fields_ = [("size", c_uint), ("instruction", c_int), ("variant", c_int), ("axisFlag", c_int), ("workArea", c_int),
                ("controlCode", c_uint), ("restricted", c_int), ("permitted", c_uint * 4)]


class Entry(Structure):
    _fields_ = [("size", c_uint), ("control", c_int), ("name", c_char_p), ("text", c_char_p)]


class Refusal(Structure):
    _fields_ = [("size", c_uint), ("reason", c_int), ("messageId", c_int), ("control", c_int), ("entry", c_int),
                ("row", c_int), ("column", c_int), ("name", c_char * 32), ("message", c_char * 512)]

    def __str__(self):
        return f"{self.name.decode()} is refused: {self.message.decode()}"


class Data(Structure):
    _fields_ = [("size", c_uint), ("code", c_int), ("number", c_int), ("type", c_int), ("format", c_int),
                ("value", c_int)]


class Wizard:
    """Wizard().Name(...) calls Pexlo_Name."""

    def __init__(self):
        self.handle = c_void_p(library.Pexlo_Create())
        if not self.handle:
            raise MemoryError("The wizard could not be created.")

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.Destroy()

    def __getattr__(self, name):
        operation = getattr(library, "Pexlo_" + name)

        def call(*arguments):
            result = operation(self.handle, *arguments)
            if result <= -1001:  # everything else is the operation's result
                raise RuntimeError(f"The library was called wrongly: {result}, see pexlo.h.")
            return result

        return call


def describe_plc(wizard):
    """What the wizard has to know about the PLC. Bits are numbered word x 16 + bit."""
    wizard.SetPlcType(1)
    wizard.SetDevRange(-1, 3, 0, 12 * 16 + 15)  # X0 to X12F
    wizard.SetDevRange(-1, 2, 0, 12 * 16 + 15)  # Y0 to Y12F
    wizard.SetDevRange(-1, 1, 0, 62 * 16 + 15)  # R0 to R62F
    wizard.SetDevRange(-1, 9, 0, 1659)  # DT0 to DT1659
    wizard.EntrySupportFunInfo(168)  # it has F168


def fill(wizard, values):
    """None, or why the form was not accepted."""
    entries = [Entry(name=name.encode(), text=text.encode()) for name, text in values.items()]
    form, refusal = Form(instruction=168), Refusal()
    accepted = wizard.Fill(byref(form), (Entry * len(entries))(*entries), len(entries), byref(refusal)) == 1
    return None if accepted else refusal


def print_data_table(wizard):
    """F168 has no real numbers: of its entries type and format are 0 or 1."""
    count = wizard.GetDataInfoCount()
    print(f"Data table: {count}")
    for index in range(count):
        data = Data()
        wizard.GetDataInfo(index, byref(data))
        width = ("1 word", "2 words")[data.type]
        value = f"H{data.value & 0xFFFFFFFF:X}" if data.format == 1 else f"K{data.value}"
        print(f"{index:4}  {f'DT{data.number}':10}  {width:7}  {value}")


def main():
    # What a user would type and select, by the names of the fields.
    values = {
        "start": "1654",  # the table needs seven registers: one too many from here
        "contact-device": "R",
        "contact-number": "10A",
        "output": "Y1",
        "width": "#1",  # an item by its code, in any language
        "mode": "absolute  forward on/reverse off",
        "initial-speed": "500",
        "maximum-speed": "9500",
        "acceleration-time": "300",
        "target": "-8388608",
    }
    with Wizard() as wizard:
        describe_plc(wizard)
        if refusal := fill(wizard, values):
            print(f"{refusal}\n")
        if refusal := fill(wizard, values | {"start": "1653"}):
            sys.exit(str(refusal))
        print_data_table(wizard)


main()
