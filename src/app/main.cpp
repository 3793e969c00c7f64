// zorta: the desktop application without arguments, a headless sub-command with them.
#include <QCoreApplication>
#include <QGuiApplication>

#include "app/screens/aplicacion.h"
#include "cli/cli.h"
#include "store/apertura_base.h"

int main(int argc, char** argv) {
    if (argc < 2) return Ejecuta_Aplicacion(argc, argv);
    // Reports draw their charts, and letters need a graphical application; it needs no screen.
    if (qstrcmp(argv[1], "informe") == 0) {
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
        QGuiApplication app(argc, argv);
        QCoreApplication::setApplicationName(QStringLiteral("Zorta"));
        const CierreBase cierre;  // before the application object goes
        return Ejecuta_Cli(QCoreApplication::arguments().mid(1));
    }
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Zorta"));
    const CierreBase cierre;  // before the application object goes
    return Ejecuta_Cli(QCoreApplication::arguments().mid(1));
}
