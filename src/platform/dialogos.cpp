// The installed dialogue implementation and the command boundary.
#include "platform/dialogos.h"

#include <exception>
#include <optional>

#include "platform/base_datos.h"
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

Dialogos& dialogos() {
    return *instalados();
}

void Instala_Dialogos(std::unique_ptr<Dialogos> nuevos) {
    instalados() = std::move(nuevos);
}

QString Lineas(const QStringList& lineas) {
    return lineas.join(QLatin1Char('\r'));
}

namespace {

// Runs `paso`; the words of its failure, or nothing when it ran through.
std::optional<QString> Intenta(const std::function<void()>& paso) {
    try {
        paso();
        return std::nullopt;
    } catch (const ErrorEjecucion& e) {
        return e.texto();
    } catch (const std::exception& e) {
        return QString::fromUtf8(e.what());
    }
}

}  // namespace

// When the outermost command ends, what it stored is settled into the store file, so that a
// copy of that file made now holds it.
bool Ejecutar_Comando(const std::function<void()>& comando) {
    static int profundidad = 0;
    ++profundidad;
    std::optional<QString> texto = Intenta(comando);
    --profundidad;
    if (profundidad == 0) {
        const std::optional<QString> asiento = Intenta(BaseDatos::Asienta_Todas);
        if (!texto) texto = asiento;
    }
    if (!texto) return true;
    dialogos().MsgBox(*texto, vbCritical, QStringLiteral("Error de ejecución"));
    return false;
}
