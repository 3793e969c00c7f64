// Dispatch of the headless sub-commands.
#include "cli/cli.h"

#include <QTextStream>
#include <functional>
#include <map>

#include "cli/corregir.h"
#include "cli/hoja.h"
#include "cli/leer.h"

namespace {

struct Subcomando {
    QString ayuda;
    std::function<int(const QStringList&)> ejecutar;
};

const std::map<QString, Subcomando>& subcomandos() {
    static const std::map<QString, Subcomando> tabla = {
        {QStringLiteral("corregir"),
         {QStringLiteral("corrige las hojas escaneadas de una prueba y las graba"), Cmd_Corregir}},
        {QStringLiteral("hoja"), {QStringLiteral("dibuja una hoja de respuestas (BMP)"), Cmd_Hoja}},
        {QStringLiteral("leer"), {QStringLiteral("lee hojas escaneadas y escribe JSON"), Cmd_Leer}},
    };
    return tabla;
}

int Muestra_Uso() {
    QTextStream err(stderr);
    err << "Uso: zorta [SUBCOMANDO] [OPCIONES]\n"
           "Sin subcomando abre la aplicación de escritorio.\n\nSubcomandos:\n";
    for (const auto& [nombre, s] : subcomandos()) err << "  " << nombre << "\t" << s.ayuda << "\n";
    return 2;
}

}  // namespace

int Ejecuta_Cli(const QStringList& args) {
    const auto it = subcomandos().find(args.value(0));
    if (it == subcomandos().end()) return Muestra_Uso();
    return it->second.ejecutar(args.mid(1));
}
