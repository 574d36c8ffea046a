{ The analysis of notarial deeds for Delphi (2009 and later) and Free Pascal: analizador.h as a unit, its UTF-16
  half, and a class that turns failures into exceptions.

    Sesion := TAnalizador.Create('C:\Oficina\CONFIG', 'C:\Oficina\TABLAS');
    try
      Sesion.AnalizaFichero('deed.docx');
      for i := 0 to Sesion.Cuenta('/Otorgantes') - 1 do
        Writeln(Sesion.Campo('/Otorgantes', i, 'Apellidos'));
    finally
      Sesion.Free;
    end; }
unit Analizador;

{$IFDEF FPC}{$MODE DELPHI}{$ENDIF}

interface

uses SysUtils;

const
  ANALIZADOR_VERSION_INTERFAZ = 2;

  ANALIZADOR_BIEN = 0;
  ANALIZADOR_MAL_USO = 1;
  ANALIZADOR_MAL_TEXTO = 2;
  ANALIZADOR_OTRA_INTERFAZ = 3;
  ANALIZADOR_CONFIGURACION = 4;
  ANALIZADOR_NO_ANALIZADA = 5;
  ANALIZADOR_NO_GUARDADA = 6;
  ANALIZADOR_SIN_RESULTADOS = 7;
  ANALIZADOR_NO_HAY = 8;
  ANALIZADOR_SIN_VENTANAS = 9;
  ANALIZADOR_FALLO = 10;

  ANALIZADOR_CON_REVISION = 1;
  ANALIZADOR_CON_ORIGEN = 2;
  ANALIZADOR_FORZAR = 4;

type
  PAnalizadorSesion = Pointer;

  EAnalizador = class(Exception)
  private
    FCodigo: Integer;
  public
    constructor Create(Codigo: Integer; const Motivo: UnicodeString);
    property Codigo: Integer read FCodigo;  { one of ANALIZADOR_... }
  end;

  TAnalizador = class
  private
    FSesion: PAnalizadorSesion;
    procedure Comprueba(Codigo: Integer);
  public
    { The folders; '' for the default. }
    constructor Create(const Vocabularios, Tablas: UnicodeString);
    destructor Destroy; override;

    procedure AnalizaFichero(const Fichero: UnicodeString; Opciones: Cardinal = 0);
    procedure AnalizaTexto(const Texto: UnicodeString; Opciones: Cardinal = 0);
    { Windows: the deed that is active in the Word that is running. }
    procedure AnalizaWord(Opciones: Cardinal = 0);
    procedure PonVariable(const Nombre, Valor: UnicodeString);
    procedure PonMarcador(const Nombre: UnicodeString);
    { Destino '': the analysed file itself. }
    procedure Guarda(const Destino: UnicodeString; Opciones: Cardinal = 0);

    { A fact by its JSON pointer, and a field of an element of a list, counted from 0. Both raise when there is
      none. }
    function Texto(const Donde: AnsiString): UnicodeString;
    function Campo(const Lista: AnsiString; Indice: Integer; const Nombre: AnsiString): UnicodeString;
    function Cuenta(const Lista: AnsiString): Integer;
    function Aceptada: Boolean;
  end;

const
{$IFDEF MSWINDOWS}
  BIBLIOTECA = 'analizador.dll';
{$ELSE}
  BIBLIOTECA = 'analizador';
{$ENDIF}

function analizador_version: PAnsiChar; cdecl; external BIBLIOTECA;
function analizador_interfaz: Integer; cdecl; external BIBLIOTECA;
function analizador_comprueba(interfaz: Integer): Integer; cdecl; external BIBLIOTECA;
function analizador_abre16(interfaz: Integer; vocabularios, tablas: PWideChar;
  out sesion: PAnalizadorSesion): Integer; cdecl; external BIBLIOTECA;
procedure analizador_cierra(sesion: PAnalizadorSesion); cdecl; external BIBLIOTECA;
function analizador_error16(sesion: PAnalizadorSesion): PWideChar; cdecl; external BIBLIOTECA;
function analizador_analiza_fichero16(sesion: PAnalizadorSesion; fichero: PWideChar;
  opciones: Cardinal): Integer; cdecl; external BIBLIOTECA;
function analizador_analiza_texto16(sesion: PAnalizadorSesion; texto: PWideChar;
  opciones: Cardinal): Integer; cdecl; external BIBLIOTECA;
function analizador_analiza_word(sesion: PAnalizadorSesion; aplicacion: Pointer; opciones: Cardinal): Integer; cdecl;
  external BIBLIOTECA;
function analizador_pon_variable16(sesion: PAnalizadorSesion; nombre, valor: PWideChar): Integer; cdecl;
  external BIBLIOTECA;
function analizador_pon_marcador16(sesion: PAnalizadorSesion; nombre: PWideChar): Integer; cdecl;
  external BIBLIOTECA;
function analizador_texto16(sesion: PAnalizadorSesion; donde: PAnsiChar): PWideChar; cdecl; external BIBLIOTECA;
function analizador_cuenta(sesion: PAnalizadorSesion; donde: PAnsiChar): Integer; cdecl; external BIBLIOTECA;
function analizador_aceptada(sesion: PAnalizadorSesion): Integer; cdecl; external BIBLIOTECA;
function analizador_guarda16(sesion: PAnalizadorSesion; destino: PWideChar; opciones: Cardinal): Integer; cdecl;
  external BIBLIOTECA;

implementation

{$IFDEF LINUX}{$LINKLIB c}{$ENDIF}

function ONulo(const Texto: UnicodeString): PWideChar;
begin
  if Texto = '' then Result := nil else Result := PWideChar(Texto);
end;

constructor EAnalizador.Create(Codigo: Integer; const Motivo: UnicodeString);
begin
{$IFDEF FPC}
  inherited Create(string(UTF8Encode(Motivo)));
{$ELSE}
  inherited Create(Motivo);
{$ENDIF}
  FCodigo := Codigo;
end;

constructor TAnalizador.Create(const Vocabularios, Tablas: UnicodeString);
begin
  Comprueba(analizador_abre16(ANALIZADOR_VERSION_INTERFAZ, ONulo(Vocabularios), ONulo(Tablas), FSesion));
end;

destructor TAnalizador.Destroy;
begin
  analizador_cierra(FSesion);
  inherited;
end;

procedure TAnalizador.Comprueba(Codigo: Integer);
begin
  if Codigo <> ANALIZADOR_BIEN then raise EAnalizador.Create(Codigo, analizador_error16(FSesion));
end;

procedure TAnalizador.AnalizaFichero(const Fichero: UnicodeString; Opciones: Cardinal);
begin
  Comprueba(analizador_analiza_fichero16(FSesion, PWideChar(Fichero), Opciones));
end;

procedure TAnalizador.AnalizaTexto(const Texto: UnicodeString; Opciones: Cardinal);
begin
  Comprueba(analizador_analiza_texto16(FSesion, PWideChar(Texto), Opciones));
end;

procedure TAnalizador.AnalizaWord(Opciones: Cardinal);
begin
  Comprueba(analizador_analiza_word(FSesion, nil, Opciones));
end;

procedure TAnalizador.PonVariable(const Nombre, Valor: UnicodeString);
begin
  Comprueba(analizador_pon_variable16(FSesion, PWideChar(Nombre), PWideChar(Valor)));
end;

procedure TAnalizador.PonMarcador(const Nombre: UnicodeString);
begin
  Comprueba(analizador_pon_marcador16(FSesion, PWideChar(Nombre)));
end;

procedure TAnalizador.Guarda(const Destino: UnicodeString; Opciones: Cardinal);
begin
  Comprueba(analizador_guarda16(FSesion, ONulo(Destino), Opciones));
end;

function TAnalizador.Texto(const Donde: AnsiString): UnicodeString;
var
  Hecho: PWideChar;
begin
  Hecho := analizador_texto16(FSesion, PAnsiChar(Donde));
  if Hecho = nil then raise EAnalizador.Create(ANALIZADOR_NO_HAY, analizador_error16(FSesion));
  Result := Hecho;
end;

function TAnalizador.Campo(const Lista: AnsiString; Indice: Integer; const Nombre: AnsiString): UnicodeString;
begin
  Result := Texto(Lista + '/' + AnsiString(IntToStr(Indice)) + '/' + Nombre);
end;

function TAnalizador.Cuenta(const Lista: AnsiString): Integer;
begin
  Result := analizador_cuenta(FSesion, PAnsiChar(Lista));
  if Result < 0 then raise EAnalizador.Create(ANALIZADOR_NO_HAY, analizador_error16(FSesion));
end;

function TAnalizador.Aceptada: Boolean;
begin
  Result := analizador_aceptada(FSesion) = 1;
end;

end.
