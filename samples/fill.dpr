// Fills in F168, trapezoidal control, without showing its dialog, and prints the data table. For Delphi and Free Pascal.
program fill;

{$ifdef FPC}{$mode delphi}{$endif}
{$ifdef MSWINDOWS}{$apptype console}{$endif}

uses
  SysUtils, pexlo;

// What the wizard has to know about the PLC. Bits are numbered word x 16 + bit.
procedure DescribePlc(Wizard: TPexloHandle);
begin
  Checked(Pexlo_SetPlcType(Wizard, 1));
  Checked(Pexlo_SetDevRange(Wizard, -1, 3, 0, 12 * 16 + 15)); // X0 to X12F
  Checked(Pexlo_SetDevRange(Wizard, -1, 2, 0, 12 * 16 + 15)); // Y0 to Y12F
  Checked(Pexlo_SetDevRange(Wizard, -1, 1, 0, 62 * 16 + 15)); // R0 to R62F
  Checked(Pexlo_SetDevRange(Wizard, -1, 9, 0, 1659));         // DT0 to DT1659
  Checked(Pexlo_EntrySupportFunInfo(Wizard, 168));            // it has F168
end;

// What a user would type and select. False when the form is not accepted, and then Message says why.
function FillForm(Wizard: TPexloHandle; const Start: AnsiString; out Message: AnsiString): Boolean;
const
  Values: array[0..9, 0..1] of PAnsiChar = (
    ('contact-device', 'R'),
    ('contact-number', '10A'),
    ('output', 'Y1'),
    ('width', '#1'), // an item by its code, in any language
    ('mode', 'absolute  forward on/reverse off'),
    ('initial-speed', '500'),
    ('maximum-speed', '9500'),
    ('acceleration-time', '300'),
    ('target', '-8388608'),
    ('start', ''));
var
  Form: TPexloForm;
  Entries: array[0..High(Values)] of TPexloEntry;
  Refusal: TPexloRefusal;
  I: Integer;
begin
  FillChar(Entries, SizeOf(Entries), 0);
  for I := 0 to High(Values) do
  begin
    Entries[I].Size := SizeOf(TPexloEntry);
    Entries[I].Name := Values[I, 0];
    Entries[I].Text := Values[I, 1];
  end;
  Entries[High(Values)].Text := PAnsiChar(Start);

  FillChar(Form, SizeOf(Form), 0);
  Form.Size := SizeOf(Form);
  Form.Instruction := 168;
  FillChar(Refusal, SizeOf(Refusal), 0);
  Refusal.Size := SizeOf(Refusal);
  Result := Checked(Pexlo_Fill(Wizard, Form, Entries[0], Length(Entries), Refusal)) = 1;
  if not Result then
    Message := AnsiString(Refusal.Name) + ' is refused: ' + AnsiString(Refusal.Message);
end;

// F168 has no real numbers: of its entries kind and format are 0 or 1.
procedure PrintDataTable(Wizard: TPexloHandle);
const
  Widths: array[0..1] of string = ('1 word', '2 words');
var
  Data: TPexloData;
  Value: string;
  I: Integer;
begin
  Writeln('Data table: ', Checked(Pexlo_GetDataInfoCount(Wizard)));
  Data.Size := SizeOf(Data);
  for I := 0 to Checked(Pexlo_GetDataInfoCount(Wizard)) - 1 do
  begin
    Checked(Pexlo_GetDataInfo(Wizard, I, Data));
    if Data.Format = 1 then
      Value := 'H' + IntToHex(Data.Value, 1)
    else
      Value := 'K' + IntToStr(Data.Value);
    Writeln(Format('%4d  %-10s  %-7s  %s', [I, 'DT' + IntToStr(Data.Number), Widths[Data.Kind], Value]));
  end;
end;

procedure Run(Wizard: TPexloHandle);
var
  Message: AnsiString;
begin
  DescribePlc(Wizard);
  if not FillForm(Wizard, '1654', Message) then // the table needs seven registers: one too many from here
    Writeln(Message, sLineBreak);
  if not FillForm(Wizard, '1653', Message) then
    raise Exception.Create(string(Message));
  PrintDataTable(Wizard);
end;

var
  Wizard: TPexloHandle;

begin
  Wizard := Pexlo_Create;
  try
    if Wizard = nil then
      raise Exception.Create('The wizard could not be created.');
    Run(Wizard);
  except
    on E: Exception do
    begin
      Writeln(ErrOutput, E.Message);
      ExitCode := 1;
    end;
  end;
  Pexlo_Destroy(Wizard); // nothing happens without one
end.
