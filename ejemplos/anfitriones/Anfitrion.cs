// A host program for .NET: prints the report of a deed, its language and its amounts, or the JSON of its facts.
//
//   Anfitrion [--json] VOCABULARIES TABLES DEED.docx

using System;
using System.Linq;
using System.Text;

namespace Notaria
{
    public static class Anfitrion
    {
        public static int Main(string[] argumentos)
        {
            var conJson = argumentos.FirstOrDefault() == "--json";
            var resto = argumentos.Skip(conJson ? 1 : 0).ToArray();
            if (resto.Length != 3)
            {
                Console.Error.WriteLine("Anfitrion [--json] VOCABULARIES TABLES DEED");
                return 2;
            }
            Console.OutputEncoding = new UTF8Encoding(false);
            try
            {
                using (var sesion = new Analizador(resto[0], resto[1]))
                {
                    sesion.AnalizaFichero(resto[2]);
                    Console.Write(conJson ? sesion.Texto("") + "\n" : Informe(sesion));
                }
                return 0;
            }
            catch (ErrorAnalizador error)
            {
                Console.Error.WriteLine(error.Message);
                return 1;
            }
        }

        private static string Informe(Analizador sesion)
        {
            var cuantias = Enumerable.Range(0, sesion.Cuenta("/Cuantias")).Select(i => sesion.Texto("/Cuantias/" + i));
            return sesion.Texto("/Pizarra").Replace("\r", "")
                + "\nIDIOMA       : " + sesion.Texto("/idioma").ToUpperInvariant()
                + "\nCUANTIAS     : " + string.Join("\n               ", cuantias) + "\n";
        }
    }
}
