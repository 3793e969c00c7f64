// Start-up of the system up to the test list.
#include "app/inicio.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QStandardPaths>
#include <clocale>

#include "app/estado.h"
#include "platform/base_datos.h"
#include "platform/dialogos.h"
#include "platform/error_ejecucion.h"
#include "platform/planilla.h"
#include "store/apertura_base.h"
#include "store/nota_minima.h"

namespace {

void Limpia_Banderas() {
    Estado& e = estado();
    e.Mant_PSU = false;
    e.Puntajes_SIMCE = false;
    e.Mant_SIMCE = false;
    e.Puntajes_PSU = false;
}

// The arithmetic needs "." as the decimal separator. The conversions of the system never use
// the machine's locale; the C library's numeric format is pinned for everything else.
void Fija_Separadores_Regionales() {
    std::setlocale(LC_NUMERIC, "C");
}

bool Existe_Componente(const QString& componente) {
    if (componente == QLatin1String("Excel.Application")) return Planilla_Disponible();
    return QSqlDatabase::isDriverAvailable(QStringLiteral("QSQLITE"));
}

}  // namespace

QString Carpeta_Datos() {
    const QString forzada = qEnvironmentVariable("ZORTA_DATOS");
    if (!forzada.isEmpty()) return forzada;
    const QString ejecutable = QCoreApplication::applicationDirPath();
    if (!ejecutable.isEmpty() && QFileInfo(ejecutable).isWritable()) return ejecutable;
    const QString usuario = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    QDir().mkpath(usuario);
    return usuario;
}

QString Ruta_Base() {
    return QDir(Carpeta_Datos()).filePath(QStringLiteral("BaseNota.db"));
}

bool MDIForm_Load() {
    Limpia_Banderas();
    Fija_Separadores_Regionales();
    if (!Existe_Componente(QStringLiteral("Excel.Application")))
        dialogos().MsgBox(
            QStringLiteral("Verificar, este equipo NO tiene instalada una version de Excel"),
            vbExclamation, QStringLiteral("Dispositivos Instalados"));
    if (!Existe_Componente(QStringLiteral("Access.Application"))) {
        dialogos().MsgBox(
            Lineas({QStringLiteral(
                        "Verificar, este equipo NO tiene instalada una version de Access, "),
                    QStringLiteral(
                        "Favor comunique con su administrador para realizar esta instalación"),
                    QStringLiteral("El programa se cerrara automaticamente.")}),
            vbExclamation, QStringLiteral("Dispositivos Instalados"));
        return false;
    }
    try {
        estado().BaseDatos = Abre_Base(Ruta_Base());
    } catch (const ErrorEjecucion& e) {
        dialogos().MsgBox(e.texto(), vbCritical, QStringLiteral("Error de ejecución"));
        return false;
    }
    estado().Nivel_Gris = 180;
    try {
        estado().Nota_Minima_Actual = Fnc_Lee_Nota_Minima();
    } catch (const ErrorEjecucion&) {
    }
    return true;
}
