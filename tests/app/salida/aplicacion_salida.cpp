// The desktop application, driven through its real event loop to one way out: "salir" takes
// the menu entry Archivo -> Salir, "cerrar" closes the main window and answers the question.
// Its exit status is the application's; the test that starts it looks at that.
#include <QTimer>
#include <cstdio>

#include "app/screens/aplicacion.h"
#include "app/screens/mdi_main.h"
#include "platform/dialogos.h"

namespace {

// Answers every box with OK, as an operator confirming the closing would.
class DialogosAceptar : public Dialogos {
  public:
    int MsgBox(const QString& texto, int, const QString& titulo) override {
        std::printf("[%s] %s\n", qPrintable(titulo), qPrintable(texto));
        return vbOK;
    }
    QString InputBox(const QString&, const QString&, const QString&) override { return {}; }
    QString AbrirArchivo(const QString&, const QString&) override { return {}; }
    QString GuardarArchivo(const QString&, const QString&, const QString&) override { return {}; }
    QString Frm_SoloRrut(const QString&) override { return {}; }
};

}  // namespace

int main(int argc, char** argv) {
    const QString salida = argc > 1 ? QString::fromUtf8(argv[1]) : QString();
    int uno = 1;
    return Ejecuta_Aplicacion(uno, argv, [salida](MdiMain& principal) {
        QTimer::singleShot(50, &principal, [&principal, salida] {
            Instala_Dialogos(std::make_unique<DialogosAceptar>());
            if (salida == QLatin1String("salir"))
                principal.Ejecuta(QStringLiteral("mnu_salir"));
            else
                principal.close();
        });
    });
}
