// Dispatch of the headless sub-commands.
#include "cli/cli.h"

#include <QTextStream>
#include <functional>
#include <map>

#include "cli/corregir.h"
#include "cli/demo.h"
#include "cli/hoja.h"
#include "cli/informe.h"
#include "cli/leer.h"
#include "platform/error_ejecucion.h"

namespace {

struct Subcomando {
    QString ayuda;
    std::function<int(const QStringList&)> ejecutar;
};

const std::map<QString, Subcomando>& subcomandos() {
    static const std::map<QString, Subcomando> tabla = {
        {QStringLiteral("corregir"),
         {QStringLiteral("corrige las hojas escaneadas de una prueba y las graba"), Cmd_Corregir}},
        {QStringLiteral("demo"),
         {QStringLiteral("prepara una prueba de demostración con sus hojas escaneadas"), Cmd_Demo}},
        {QStringLiteral("hoja"), {QStringLiteral("dibuja una hoja de respuestas (BMP)"), Cmd_Hoja}},
        {QStringLiteral("informe"),
         {QStringLiteral("escribe la planilla de un análisis de una prueba"), Cmd_Informe}},
        {QStringLiteral("leer"), {QStringLiteral("lee hojas escaneadas y escribe JSON"), Cmd_Leer}},
    };
    return tabla;
}

int Muestra_Uso(FILE* destino = stderr) {
    QTextStream err(destino);
    err << "Uso: zorta [SUBCOMANDO] [OPCIONES]\n"
           "Sin subcomando abre la aplicación de escritorio.\n\nSubcomandos:\n";
    for (const auto& [nombre, s] : subcomandos()) err << "  " << nombre << "\t" << s.ayuda << "\n";
    return 2;
}

}  // namespace

int Ejecuta_Cli(const QStringList& args) {
    const auto it = subcomandos().find(args.value(0));
    if (it == subcomandos().end()) {
        const bool ayuda =
            args.value(0) == QLatin1String("--help") || args.value(0) == QLatin1String("-h");
        if (!ayuda) return Muestra_Uso();
        Muestra_Uso(stdout);
        return 0;
    }
    // An unexpected failure ends the command with its words, never with a crash; what was
    // stored before it stays stored.
    try {
        return it->second.ejecutar(args.mid(1));
    } catch (const ErrorEjecucion& e) {
        QTextStream(stderr) << "Error de ejecución: " << e.texto() << "\n";
    } catch (const std::exception& e) {
        QTextStream(stderr) << "Error de ejecución: " << e.what() << "\n";
    }
    return 1;
}

bool Pide_Ayuda(const QStringList& args, const char* ayuda) {
    if (!args.contains(QLatin1String("--help")) && !args.contains(QLatin1String("-h")))
        return false;
    QTextStream(stdout) << ayuda;
    return true;
}

