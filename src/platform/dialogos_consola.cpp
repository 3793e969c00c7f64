// The boxes of a headless command.
#include "platform/dialogos_consola.h"

namespace {

QString En_Una_Linea(QString texto) { return texto.replace(QLatin1Char('\r'), QStringLiteral(" / ")); }

QString Nombre_Respuesta(int r) {
    switch (r) {
        case vbOK: return QStringLiteral("Aceptar");
        case vbYes: return QStringLiteral("Sí");
        case vbNo: return QStringLiteral("No");
        case vbRetry: return QStringLiteral("Reintentar");
        case vbIgnore: return QStringLiteral("Omitir");
        case vbAbort: return QStringLiteral("Anular");
        default: return QStringLiteral("Cancelar");
    }
}

}  // namespace

int Respuesta_Por_Defecto(int estilo) {
    switch (estilo & 0x0F) {
        case vbOKCancel: case vbRetryCancel: return vbCancel;
        case vbYesNo: case vbYesNoCancel: return vbNo;
        case vbAbortRetryIgnore: return vbAbort;
        default: return vbOK;
    }
}

int DialogosConsola::MsgBox(const QString& texto, int estilo, const QString& titulo) {
    const int r = respuestas_.value(titulo, Respuesta_Por_Defecto(estilo));
    salida_ << "[" << titulo << "] " << En_Una_Linea(texto);
    if ((estilo & 0x0F) != vbOKOnly) salida_ << " -> " << Nombre_Respuesta(r);
    salida_ << Qt::endl;
    return r;
}

QString DialogosConsola::InputBox(const QString& pregunta, const QString& titulo, const QString&) {
    const QString r = textos_.value(titulo);
    salida_ << "[" << titulo << "] " << En_Una_Linea(pregunta) << " -> \"" << r << "\"" << Qt::endl;
    return r;
}

QString DialogosConsola::AbrirArchivo(const QString& titulo, const QString&) {
    salida_ << "[" << titulo << "] (sin archivo)" << Qt::endl;
    return {};
}

QString DialogosConsola::Frm_SoloRrut(const QString& curso) {
    const QString r = textos_.value(QStringLiteral("Seleccione Rut Alumno"));
    salida_ << "[Seleccione Rut Alumno] " << curso << " -> \"" << r << "\"" << Qt::endl;
    return r;
}

QString DialogosConsola::GuardarArchivo(const QString& titulo, const QString&, const QString&) {
    salida_ << "[" << titulo << "] (sin archivo)" << Qt::endl;
    return {};
}
