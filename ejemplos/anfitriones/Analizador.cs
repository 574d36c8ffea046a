// The analysis of notarial deeds for .NET: analizador.h as P/Invoke, its UTF-16 half, and a class that turns failures
// into exceptions. The library (analizador.dll, libanalizador.so) must be where the system looks for it.

using System;
using System.Runtime.InteropServices;

namespace Notaria
{
    public sealed class ErrorAnalizador : Exception
    {
        public ErrorAnalizador(int codigo, string motivo) : base(motivo) => Codigo = codigo;

        public int Codigo { get; }
    }

    public sealed class Analizador : IDisposable
    {
        public const int VersionInterfaz = 2;

        [Flags]
        public enum Opciones : uint { Ninguna = 0, ConRevision = 1, ConOrigen = 2, Forzar = 4 }

        private IntPtr sesion;

        // The folders; null for the default.
        public Analizador(string vocabularios = null, string tablas = null) =>
            Comprueba(analizador_abre16(VersionInterfaz, vocabularios, tablas, out sesion));

        public void AnalizaFichero(string fichero, Opciones opciones = 0) =>
            Comprueba(analizador_analiza_fichero16(sesion, fichero, (uint)opciones));

        public void AnalizaTexto(string texto, Opciones opciones = 0) =>
            Comprueba(analizador_analiza_texto16(sesion, texto, (uint)opciones));

        /// <summary>Windows: the deed that is active in the Word that is running.</summary>
        public void AnalizaWord(Opciones opciones = 0) =>
            Comprueba(analizador_analiza_word(sesion, IntPtr.Zero, (uint)opciones));

        public void PonVariable(string nombre, string valor) =>
            Comprueba(analizador_pon_variable16(sesion, nombre, valor));

        public void PonMarcador(string nombre) => Comprueba(analizador_pon_marcador16(sesion, nombre));

        // null: the analysed file itself.
        public void Guarda(string destino = null, Opciones opciones = 0) =>
            Comprueba(analizador_guarda16(sesion, destino, (uint)opciones));

        // A fact by its JSON pointer ("" for the whole JSON); null when there is none.
        public string Texto(string donde) => Marshal.PtrToStringUni(analizador_texto16(sesion, donde));

        // The elements of a list; -1 when there is none.
        public int Cuenta(string lista) => analizador_cuenta(sesion, lista);

        public bool Aceptada => analizador_aceptada(sesion) == 1;

        public void Dispose()
        {
            analizador_cierra(sesion);
            sesion = IntPtr.Zero;
        }

        private void Comprueba(int codigo)
        {
            if (codigo != 0) throw new ErrorAnalizador(codigo, Marshal.PtrToStringUni(analizador_error16(sesion)));
        }

        private const string Biblioteca = "analizador";

        [DllImport(Biblioteca, CallingConvention = CallingConvention.Cdecl, CharSet = CharSet.Unicode)]
        private static extern int analizador_abre16(int interfaz, string vocabularios, string tablas, out IntPtr sesion);

        [DllImport(Biblioteca, CallingConvention = CallingConvention.Cdecl)]
        private static extern void analizador_cierra(IntPtr sesion);

        [DllImport(Biblioteca, CallingConvention = CallingConvention.Cdecl)]
        private static extern IntPtr analizador_error16(IntPtr sesion);

        [DllImport(Biblioteca, CallingConvention = CallingConvention.Cdecl, CharSet = CharSet.Unicode)]
        private static extern int analizador_analiza_fichero16(IntPtr sesion, string fichero, uint opciones);

        [DllImport(Biblioteca, CallingConvention = CallingConvention.Cdecl, CharSet = CharSet.Unicode)]
        private static extern int analizador_analiza_texto16(IntPtr sesion, string texto, uint opciones);

        [DllImport(Biblioteca, CallingConvention = CallingConvention.Cdecl)]
        private static extern int analizador_analiza_word(IntPtr sesion, IntPtr aplicacion, uint opciones);

        [DllImport(Biblioteca, CallingConvention = CallingConvention.Cdecl, CharSet = CharSet.Unicode)]
        private static extern int analizador_pon_variable16(IntPtr sesion, string nombre, string valor);

        [DllImport(Biblioteca, CallingConvention = CallingConvention.Cdecl, CharSet = CharSet.Unicode)]
        private static extern int analizador_pon_marcador16(IntPtr sesion, string nombre);

        // Places are ASCII.
        [DllImport(Biblioteca, CallingConvention = CallingConvention.Cdecl, CharSet = CharSet.Ansi)]
        private static extern IntPtr analizador_texto16(IntPtr sesion, string donde);

        [DllImport(Biblioteca, CallingConvention = CallingConvention.Cdecl, CharSet = CharSet.Ansi)]
        private static extern int analizador_cuenta(IntPtr sesion, string donde);

        [DllImport(Biblioteca, CallingConvention = CallingConvention.Cdecl)]
        private static extern int analizador_aceptada(IntPtr sesion);

        [DllImport(Biblioteca, CallingConvention = CallingConvention.Cdecl, CharSet = CharSet.Unicode)]
        private static extern int analizador_guarda16(IntPtr sesion, string destino, uint opciones);
    }
}
