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
#include "store/esquema.h"
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
void Fija_Separadores_Regionales() { std::setlocale(LC_NUMERIC, "C"); }

bool Existe_Componente(const QString& componente) {
    if (componente == QLatin1String("Excel.Application")) return Planilla_Disponible();
    return QSqlDatabase::isDriverAvailable(QStringLiteral("QSQLITE"));
}

// Runs one statement of the migration; its failure is ignored.
void Intenta(const QString& sql, const QVariantList& parametros = {}) {
    try {
        estado().BaseDatos->Execute(sql, parametros);
    } catch (const ErrorEjecucion&) {
    }
}

void Copia_Ejes_Tematicos() {
    BaseDatos& base = *estado().BaseDatos;
    try {
        Recordset rs = base.OpenRecordset(QStringLiteral("select * from ejes_tematicos order by CORRELATIVO"));
        for (; !rs.Eof(); rs.MoveNext()) {
            QVariantList fila;
            for (int i = 0; i < 7; ++i) fila << rs[i];
            Intenta(QStringLiteral("insert into NEW_EJE_TEMATICO values (?, ?, ?, ?, ?, ?, ?)"), fila);
        }
    } catch (const ErrorEjecucion&) {
    }
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

QString Ruta_Base() { return QDir(Carpeta_Datos()).filePath(QStringLiteral("BaseNota.db")); }

// SQLite sees its own changes at once, so the store need not be reopened between the tests.
// Table constraints stand after the columns, as SQLite requires; the column order is kept.
void Migra_Esquema() {
    BaseDatos& base = *estado().BaseDatos;
    if (!base.TableExists(QStringLiteral("NEW_EJE_TEMATICO"))) {
        Intenta(QStringLiteral(
            "CREATE TABLE NEW_EJE_TEMATICO (CORRELATIVO integer CONSTRAINT MyFieldConstraint PRIMARY KEY , "
            "IDPRUEBA    integer , NUMERO_PREGUNTA integer , EJE_TEMATICO char, EJE_OBJETIVO char , "
            "FORMA INTEGER , TIPO_PRUEBA char);"));
        Copia_Ejes_Tematicos();
    }
    if (!base.TableExists(QStringLiteral("Puntajes_PSU_NEW")))
        Intenta(QStringLiteral(
            "CREATE TABLE Puntajes_PSU_NEW (id_psu integer CONSTRAINT MyFieldConstraint PRIMARY KEY , "
            "nombre_psu char , tipo_prueba char ,numero_preguntas integer, elimina_buenas char , "
            "numero_elimina_malas INTEGER , puntaje_min integer, puntaje_max integer);"));
    if (!base.TableExists(QStringLiteral("Puntajes_PSU_DINAMICO")))
        Intenta(QStringLiteral(
            "CREATE TABLE Puntajes_PSU_DINAMICO (id_psu integer , numero_pregunta integer, "
            "nombre_psu char , puntaje_obtenido integer , "
            "CONSTRAINT PK_MB_AUTOR_idMatBiblio_idAutor PRIMARY KEY(id_psu,numero_pregunta));"));
}

bool MDIForm_Load() {
    Limpia_Banderas();
    Fija_Separadores_Regionales();
    if (!Existe_Componente(QStringLiteral("Excel.Application")))
        dialogos().MsgBox(QStringLiteral("Verificar, este equipo NO tiene instalada una version de Excel"),
                          vbExclamation, QStringLiteral("Dispositivos Instalados"));
    if (!Existe_Componente(QStringLiteral("Access.Application"))) {
        dialogos().MsgBox(Lineas({QStringLiteral("Verificar, este equipo NO tiene instalada una version de Access, "),
                                  QStringLiteral("Favor comunique con su administrador para realizar esta instalación"),
                                  QStringLiteral("El programa se cerrara automaticamente.")}),
                          vbExclamation, QStringLiteral("Dispositivos Instalados"));
        return false;
    }
    const QString ruta = Ruta_Base();
    const bool nueva = !QFileInfo::exists(ruta);
    try {
        estado().BaseDatos = BaseDatos::OpenDatabase(ruta);
        if (nueva) Crea_Base_Nueva(*estado().BaseDatos);
    } catch (const ErrorEjecucion& e) {
        estado().BaseDatos.reset();
        if (nueva) QFile::remove(ruta);
        dialogos().MsgBox(e.texto(), vbCritical, QStringLiteral("Error de ejecución"));
        return false;
    }
    try {
        Migra_Esquema();
    } catch (const ErrorEjecucion&) {
    }
    estado().Nivel_Gris = 180;
    try {
        estado().Nota_Minima_Actual = Fnc_Lee_Nota_Minima();
    } catch (const ErrorEjecucion&) {
    }
    return true;
}
