// The part of pexlo.h that fill.dpr uses, for Delphi and Free Pascal. In 64 bits stdcall has no meaning.
unit pexlo;

{$ifdef FPC}{$mode delphi}{$endif}

interface

const
  PexloLibrary = {$ifdef MSWINDOWS} 'Pexlo.dll' {$else} 'libpexlo.so' {$endif};

type
  TPexloHandle = Pointer;

  // The structures have their size as first member.
  TPexloForm = record
    Size: Cardinal;
    Instruction, Variant_, AxisFlag, WorkArea: Integer;
    ControlCode: Cardinal;
    Restricted: Integer;
    Permitted: array[0..3] of Cardinal;
  end;

  TPexloEntry = record
    Size: Cardinal;
    Control: Integer;
    Name, Text: PAnsiChar; // UTF-8
  end;

  TPexloRefusal = record
    Size: Cardinal;
    Reason, MessageId, Control, Entry, Row, Column: Integer;
    Name: array[0..31] of AnsiChar;
    Message: array[0..511] of AnsiChar; // UTF-8
  end;

  TPexloData = record
    Size: Cardinal;
    Code, Number, Kind, Format, Value: Integer;
  end;

function Pexlo_Create: TPexloHandle; stdcall; external PexloLibrary;
function Pexlo_Destroy(Wizard: TPexloHandle): Integer; stdcall; external PexloLibrary;
function Pexlo_SetPlcType(Wizard: TPexloHandle; PlcType: Integer): Integer; stdcall; external PexloLibrary;
function Pexlo_SetDevRange(Wizard: TPexloHandle; Kind, Code, Low, High: Integer): Integer; stdcall; external PexloLibrary;
function Pexlo_EntrySupportFunInfo(Wizard: TPexloHandle; Instruction: Integer): Integer; stdcall; external PexloLibrary;
function Pexlo_GetDataInfoCount(Wizard: TPexloHandle): Integer; stdcall; external PexloLibrary;
function Pexlo_GetDataInfo(Wizard: TPexloHandle; Index: Integer; var Data: TPexloData): Integer; stdcall;
  external PexloLibrary;
function Pexlo_Fill(Wizard: TPexloHandle; var Form: TPexloForm; const Entries: TPexloEntry; Count: Integer;
  var Refusal: TPexloRefusal): Integer; stdcall; external PexloLibrary;

// A negative number says that the library was called wrongly and is raised. Everything else is the operation's result.
function Checked(Result_: Integer): Integer;

implementation

uses
  SysUtils;

function Checked(Result_: Integer): Integer;
begin
  if Result_ <= -1001 then
    raise Exception.CreateFmt('The library was called wrongly: %d, see pexlo.h.', [Result_]);
  Result := Result_;
end;

end.
