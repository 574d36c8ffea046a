Attribute VB_Name = "Analizador"
' Macro de Word: analiza el documento activo y muestra lo que se lee en el.
' Antes, una sola vez: regsvr32 analizador.dll
Option Explicit

Public Sub AnalizaEscritura()
    On Error GoTo Fallo
    Dim escritura As Object
    Set escritura = CreateObject("Analizador.Escritura")
    escritura.Analiza Application, True
    MsgBox Resumen(escritura), vbInformation, "Analizador"
    Exit Sub
Fallo:
    MsgBox Err.Description, vbExclamation, "Analizador"
End Sub

Private Function Resumen(ByVal escritura As Object) As String
    Dim otorgante As Object
    Dim concepto As Object
    Resumen = "Protocolo " & escritura.NumeroProtocolo & ", " & escritura.Fecha & vbCrLf & escritura.Notario & vbCrLf
    For Each concepto In escritura.Conceptos
        Resumen = Resumen & vbCrLf & concepto.Nombre
    Next
    For Each otorgante In escritura.Otorgantes
        Resumen = Resumen & vbCrLf & otorgante.Nombre & " " & otorgante.Apellidos & ", " & otorgante.NumDocumento
    Next
End Function
