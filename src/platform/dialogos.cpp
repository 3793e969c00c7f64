// The installed dialogue implementation and the command boundary.
#include "platform/dialogos.h"

#include <exception>

#include "platform/error_ejecucion.h"

namespace {

// Before anything is installed no box can be answered: every box is cancelled.
class DialogosMudos : public Dialogos {
public:
    int MsgBox(const QString&, int, const QString&) override { return vbCancel; }
    QString InputBox(const QString&, const QString&, const QString&) override { return {}; }
    QString AbrirArchivo(const QString&, const QString&) override { return {}; }
    QString GuardarArchivo(const QString&, const QString&, const QString&) override { return {}; }
    QString Frm_SoloRrut(const QString&) override { return {}; }
};

std::unique_ptr<Dialogos>& instalados() {
    static std::unique_ptr<Dialogos> d = std::make_unique<DialogosMudos>();
    return d;
}

}  // namespace

Dialogos& dialogos() { return *instalados(); }

void Instala_Dialogos(std::unique_ptr<Dialogos> nuevos) { instalados() = std::move(nuevos); }

QString Lineas(const QStringList& lineas) { return lineas.join(QLatin1Char('\r')); }

bool Ejecutar_Comando(const std::function<void()>& comando) {
    QString texto;
    try {
        comando();
        return true;
    } catch (const ErrorEjecucion& e) {
        texto = e.texto();
    } catch (const std::exception& e) {
        texto = QString::fromUtf8(e.what());
    }
    dialogos().MsgBox(texto, vbCritical, QStringLiteral("Error de ejecución"));
    return false;
}
