// zorta: the desktop application without arguments, a headless sub-command with them.
#include <QApplication>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QTimer>

#include "app/inicio.h"
#include "app/screens/mdi_main.h"
#include "cli/cli.h"
#include "grading/screens/frm_solo_rrut.h"
#include "platform/screens/dialogos_qt.h"

namespace {

int Aplicacion(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Zorta"));
    auto cajas = std::make_unique<DialogosQt>();
    cajas->pantalla_solo_rut = [](const QString& curso) {
        Frm_SoloRrut lista(curso, QApplication::activeWindow());
        lista.exec();
        return lista.Rut_Manual;
    };
    Instala_Dialogos(std::move(cajas));
    if (!MDIForm_Load()) return 1;
    MdiMain principal;
    principal.show();
    principal.Muestra_Pantalla(QStringLiteral("frmCorrecPru"));
    return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2) return Aplicacion(argc, argv);
    // Reports draw their charts, and letters need a graphical application; it needs no screen.
    if (qstrcmp(argv[1], "informe") == 0) {
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
        QGuiApplication app(argc, argv);
        QCoreApplication::setApplicationName(QStringLiteral("Zorta"));
        return Ejecuta_Cli(QCoreApplication::arguments().mid(1));
    }
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Zorta"));
    return Ejecuta_Cli(QCoreApplication::arguments().mid(1));
}
