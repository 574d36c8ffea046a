{ A host program in Delphi or Free Pascal: prints the report of a deed, its language and its amounts, or the JSON
  of its facts.

    fpc anfitrion.pas -Fl/path/lib
    ./anfitrion [--json] VOCABULARIES TABLES DEED.docx
    anfitrion [--json] VOCABULARIES TABLES --word          (Windows: the deed that is open in Word) }
program anfitrion;

{$IFDEF FPC}{$MODE DELPHI}{$ENDIF}
{$IFDEF MSWINDOWS}{$APPTYPE CONSOLE}{$ENDIF}

uses
  SysUtils, Analizador;

{ As bytes of UTF-8, whatever the console is set to. }
procedure Escribe(const Texto: UnicodeString);
var
  Bytes: UTF8String;
begin
  Bytes := UTF8Encode(Texto);
  if Bytes <> '' then FileWrite(TTextRec(Output).Handle, Bytes[1], Length(Bytes));
end;

{ The report's lines end in CR and LF. }
function SinCr(const Texto: UnicodeString): UnicodeString;
var
  i: Integer;
begin
  Result := '';
  for i := 1 to Length(Texto) do
    if Texto[i] <> #13 then Result := Result + Texto[i];
end;

procedure EscribeInforme(Sesion: TAnalizador);
var
  i: Integer;
begin
  Escribe(SinCr(Sesion.Texto('/Pizarra')) + #10'IDIOMA       : ');
  if Sesion.Texto('/idioma') = 'castellano' then Escribe('CASTELLANO') else Escribe('CATALAN');
  Escribe(#10'CUANTIAS     : ');
  for i := 0 to Sesion.Cuenta('/Cuantias') - 1 do
  begin
    if i > 0 then Escribe(#10'               ');
    Escribe(Sesion.Texto('/Cuantias/' + AnsiString(IntToStr(i))));
  end;
  Escribe(#10);
end;

{ UTF8Decode: on Linux an argument is bytes of UTF-8. }
function Argumento(i: Integer): UnicodeString;
begin
{$IFDEF LINUX}
  Result := UTF8Decode(ParamStr(i));
{$ELSE}
  Result := UnicodeString(ParamStr(i));
{$ENDIF}
end;

var
  Sesion: TAnalizador;
  Primero: Integer;
begin
  Primero := 1;
  if ParamStr(1) = '--json' then Primero := 2;
  if ParamCount <> Primero + 2 then
  begin
    Writeln(ErrOutput, 'anfitrion [--json] VOCABULARIES TABLES DEED');
    Halt(2);
  end;
  try
    Sesion := TAnalizador.Create(Argumento(Primero), Argumento(Primero + 1));
    try
      if ParamStr(Primero + 2) = '--word' then Sesion.AnalizaWord else Sesion.AnalizaFichero(Argumento(Primero + 2));
      if Primero = 2 then Escribe(Sesion.Texto('') + #10) else EscribeInforme(Sesion);
    finally
      Sesion.Free;
    end;
  except
    on Error: EAnalizador do
    begin
      Writeln(ErrOutput, Error.Message);
      Halt(1);
    end;
  end;
end.
