' Analiza la escritura abierta en Word y escribe sus datos:
'     cscript //nologo analiza.vbs
' Antes, una sola vez: regsvr32 analizador.dll
Option Explicit

Sub Escribe(escritura)
    Dim concepto, otorgante, cuantia, finca
    WScript.Echo "Protocolo " & escritura.NumeroProtocolo & " de " & escritura.Fecha
    WScript.Echo "Notario " & escritura.Notario
    For Each concepto In escritura.Conceptos
        WScript.Echo "Concepto " & concepto.NumeroTipo & " " & concepto.Nombre
    Next
    WScript.Echo "Otorgantes " & escritura.Otorgantes.Count
    For Each otorgante In escritura.Otorgantes
        WScript.Echo otorgante.Nombre & "|" & otorgante.Apellidos & "|" & otorgante.NumDocumento & "|" & Nacimiento(otorgante)
    Next
    For Each cuantia In escritura.Cuantias
        WScript.Echo "Cuantia " & cuantia
    Next
    For Each finca In escritura.Fincas
        WScript.Echo "Finca " & finca
    Next
End Sub

Function Nacimiento(otorgante)
    Nacimiento = "?"
    If Not IsEmpty(otorgante.FechaNacimiento) Then Nacimiento = Day(otorgante.FechaNacimiento) & "-" & Month(otorgante.FechaNacimiento) & "-" & Year(otorgante.FechaNacimiento)
End Function

Dim analisis
Set analisis = CreateObject("Analizador.Escritura")
' Nothing: el Word que esta abierto. True: sin revision en ventanas.
On Error Resume Next
analisis.Analiza Nothing, True
If Err.Number <> 0 Then
    WScript.Echo "ERROR " & Err.Source & ": " & Err.Description
    WScript.Quit 1
End If
On Error Goto 0
Escribe analisis
