// The desktop application from start to end.
#include "app/screens/aplicacion.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include "app/inicio.h"
#include "app/screens/mdi_main.h"
#include "grading/screens/frm_solo_rrut.h"
#include "platform/dialogos.h"
#include "platform/screens/dialogos_qt.h"
#include "store/apertura_base.h"

namespace {

// A failure that escapes a screen's own command boundary (a drawing, a cell shown) is shown as
// a run-time error like any other, never let through the event loop to end the program.
class AplicacionZorta : public QApplication {
  public:
    using QApplication::QApplication;
    bool notify(QObject* receptor, QEvent* evento) override {
        bool atendido = false;
        Ejecutar_Comando([&] { atendido = QApplication::notify(receptor, evento); });
        return atendido;
    }
};

// Qt's own dialogs and buttons ("Abrir", "Cancelar", "Aceptar") speak Spanish.
void Instala_Traducciones(QApplication& app) {
    QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Chile));
    auto* traductor = new QTranslator(&app);
    if (traductor->load(QLocale(QLocale::Spanish), QStringLiteral("qtbase"), QStringLiteral("_"),
                        QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(traductor);
}

void Instala_Cajas() {
    auto cajas = std::make_unique<DialogosQt>();
    cajas->pantalla_solo_rut = [](const QString& curso) {
        Frm_SoloRrut lista(curso, QApplication::activeWindow());
        lista.exec();
        return lista.Rut_Manual;
    };
    Instala_Dialogos(std::move(cajas));
}

}  // namespace

int Ejecuta_Aplicacion(int argc, char** argv, const std::function<void(MdiMain&)>& al_abrir) {
    AplicacionZorta app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Zorta"));
    Instala_Traducciones(app);
    Instala_Cajas();
    const CierreBase cierre;
    if (!MDIForm_Load()) return 1;
    MdiMain principal;
    principal.show();
    Ejecutar_Comando([&] { principal.Muestra_Pantalla(QStringLiteral("frmCorrecPru")); });
    if (al_abrir) al_abrir(principal);
    return QApplication::exec();
}
