// zorta: the desktop application without arguments, a headless sub-command with them.
#include <QCoreApplication>

#include "app/screens/aplicacion.h"
#include "cli/cli.h"
#include "store/apertura_base.h"

int main(int argc, char** argv) {
    if (argc < 2) return Ejecuta_Aplicacion(argc, argv);
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Zorta"));
    const CierreBase cierre;  // before the application object goes
    return Ejecuta_Cli(QCoreApplication::arguments().mid(1));
}
