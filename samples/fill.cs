// Fills in F168, trapezoidal control, without showing its dialog, and prints the data table. C# 6, .NET or Mono.
using System;
using System.Runtime.InteropServices;
using System.Text;

// The part of pexlo.h that is used here. "pexlo" is Pexlo.dll on Windows and libpexlo.so on Linux; int is int there, too.
static class Pexlo
{
    [StructLayout(LayoutKind.Sequential)]
    public struct Form
    {
        public int Size, Instruction, Variant, AxisFlag, WorkArea;
        public uint ControlCode;
        public int Restricted;
        public uint Permitted0, Permitted1, Permitted2, Permitted3;
    }

    [StructLayout(LayoutKind.Sequential)]
    public struct Entry
    {
        public int Size, Control;
        [MarshalAs(UnmanagedType.LPUTF8Str)] public string Name;
        [MarshalAs(UnmanagedType.LPUTF8Str)] public string Text;
    }

    [StructLayout(LayoutKind.Sequential)]
    public struct Refusal
    {
        public int Size, Reason, MessageId, Control, Entry, Row, Column;
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = 32)] public byte[] Name;
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = 512)] public byte[] Message;
    }

    [StructLayout(LayoutKind.Sequential)]
    public struct Data
    {
        public int Size, Code, Number, Type, Format, Value;
    }

    [DllImport("pexlo")] public static extern IntPtr Pexlo_Create();
    [DllImport("pexlo")] public static extern int Pexlo_Destroy(IntPtr wizard);
    [DllImport("pexlo")] public static extern int Pexlo_SetPlcType(IntPtr wizard, int type);
    [DllImport("pexlo")] public static extern int Pexlo_SetDevRange(IntPtr wizard, int kind, int code, int low, int high);
    [DllImport("pexlo")] public static extern int Pexlo_EntrySupportFunInfo(IntPtr wizard, int instruction);
    [DllImport("pexlo")] public static extern int Pexlo_GetDataInfoCount(IntPtr wizard);
    [DllImport("pexlo")] public static extern int Pexlo_GetDataInfo(IntPtr wizard, int index, ref Data data);
    [DllImport("pexlo")]
    public static extern int Pexlo_Fill(IntPtr wizard, ref Form form, [In] Entry[] entries, int count, ref Refusal refusal);
}

// Frees itself at the end of a `using`.
sealed class Wizard : IDisposable
{
    readonly IntPtr handle = Pexlo.Pexlo_Create();

    public Wizard()
    {
        if (handle == IntPtr.Zero)
            throw new OutOfMemoryException("The wizard could not be created.");
    }

    public void Dispose() { Pexlo.Pexlo_Destroy(handle); }

    static int Checked(int result)
    {
        if (result <= -1001) // everything else is the operation's result
            throw new InvalidOperationException("The library was called wrongly: " + result + ", see pexlo.h.");
        return result;
    }

    // What the wizard has to know about the PLC. Bits are numbered word x 16 + bit.
    public void DescribePlc()
    {
        Checked(Pexlo.Pexlo_SetPlcType(handle, 1));
        Checked(Pexlo.Pexlo_SetDevRange(handle, -1, 3, 0, 12 * 16 + 15)); // X0 to X12F
        Checked(Pexlo.Pexlo_SetDevRange(handle, -1, 2, 0, 12 * 16 + 15)); // Y0 to Y12F
        Checked(Pexlo.Pexlo_SetDevRange(handle, -1, 1, 0, 62 * 16 + 15)); // R0 to R62F
        Checked(Pexlo.Pexlo_SetDevRange(handle, -1, 9, 0, 1659));         // DT0 to DT1659
        Checked(Pexlo.Pexlo_EntrySupportFunInfo(handle, 168));            // it has F168
    }

    // Null, or why the form was not accepted.
    public string Fill(Pexlo.Entry[] entries)
    {
        var form = new Pexlo.Form { Size = Marshal.SizeOf(typeof(Pexlo.Form)), Instruction = 168 };
        var refusal = new Pexlo.Refusal { Size = Marshal.SizeOf(typeof(Pexlo.Refusal)) };
        if (Checked(Pexlo.Pexlo_Fill(handle, ref form, entries, entries.Length, ref refusal)) == 1)
            return null;
        return Text(refusal.Name) + " is refused: " + Text(refusal.Message);
    }

    // F168 has no real numbers: of its entries type and format are 0 or 1.
    public void PrintDataTable()
    {
        string[] widths = { "1 word", "2 words" };
        int count = Checked(Pexlo.Pexlo_GetDataInfoCount(handle));
        Console.Write("Data table: {0}\n", count);
        var data = new Pexlo.Data { Size = Marshal.SizeOf(typeof(Pexlo.Data)) };
        for (int i = 0; i < count; i++)
        {
            Checked(Pexlo.Pexlo_GetDataInfo(handle, i, ref data));
            string value = data.Format == 1 ? "H" + data.Value.ToString("X") : "K" + data.Value;
            Console.Write("{0,4}  {1,-10}  {2,-7}  {3}\n", i, "DT" + data.Number, widths[data.Type], value);
        }
    }

    static string Text(byte[] utf8) { return Encoding.UTF8.GetString(utf8, 0, Array.IndexOf(utf8, (byte)0)); }
}

static class Program
{
    static Pexlo.Entry Entry(string name, string text)
    {
        return new Pexlo.Entry { Size = Marshal.SizeOf(typeof(Pexlo.Entry)), Name = name, Text = text };
    }

    static int Main()
    {
        // What a user would type and select, by the names of the fields.
        Pexlo.Entry[] entries = {
            Entry("start", "1654"), // the table needs seven registers: one too many from here
            Entry("contact-device", "R"),
            Entry("contact-number", "10A"),
            Entry("output", "Y1"),
            Entry("width", "#1"), // an item by its code, in any language
            Entry("mode", "absolute  forward on/reverse off"),
            Entry("initial-speed", "500"),
            Entry("maximum-speed", "9500"),
            Entry("acceleration-time", "300"),
            Entry("target", "-8388608"),
        };
        using (var wizard = new Wizard())
        {
            wizard.DescribePlc();
            string refusal = wizard.Fill(entries);
            if (refusal != null)
                Console.Write("{0}\n\n", refusal);

            entries[0].Text = "1653";
            refusal = wizard.Fill(entries);
            if (refusal != null)
            {
                Console.Error.WriteLine(refusal);
                return 1;
            }
            wizard.PrintDataTable();
        }
        return 0;
    }
}
