// Opening and closing the one store file.
#include "store/apertura_base.h"

#include <fcntl.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "app/estado.h"
#include "platform/base_datos.h"
#include "platform/dialogos.h"
#include "platform/error_ejecucion.h"
#include "store/esquema.h"

namespace {

[[noreturn]] void No_Abre(const QString& ruta, const QString& motivo) {
    throw ErrorEjecucion(QStringLiteral("No se pudo abrir la base de datos %1.\n%2")
                             .arg(QDir::toNativeSeparators(ruta), motivo));
}

// Makes the rename of the new store durable.
void Sincroniza_Carpeta(const QString& carpeta) {
    const int fd = ::open(QFile::encodeName(carpeta).constData(), O_RDONLY | O_DIRECTORY);
    if (fd < 0) return;
    ::fsync(fd);
    ::close(fd);
}

// Looks at an existing file without writing to it: it must be a store of ours, of a version
// this program knows.
void Verifica_Base(const QString& ruta) {
    const QFileInfo archivo(ruta);
    const QString intacto = QStringLiteral(" El archivo no se ha modificado.");
    if (!archivo.isFile()) No_Abre(ruta, QStringLiteral("No es un archivo."));
    if (!archivo.isWritable())
        No_Abre(ruta,
                QStringLiteral("El archivo es de solo lectura: Zorta necesita grabar en él."));
    QStringList faltan;
    int version = 0;
    try {
        const auto base = BaseDatos::OpenDatabase(ruta, Apertura::Consulta);
        faltan = Tablas_Que_Faltan(*base);
        version = Version_Esquema(*base);
    } catch (const ErrorEjecucion& e) {
        No_Abre(ruta,
                QStringLiteral("El archivo no es una base de datos de Zorta, o está dañado.") +
                    intacto + QLatin1Char('\n') + e.texto().section(QLatin1Char('\n'), -1));
    }
    if (!faltan.isEmpty())
        No_Abre(ruta, QStringLiteral("El archivo no es una base de datos de Zorta, o está "
                                     "incompleto (no tiene la tabla %1).")
                              .arg(faltan.first()) +
                          intacto);
    if (version > kVersionEsquema)
        No_Abre(ruta, QStringLiteral("La base de datos es de una versión más nueva de Zorta: "
                                     "instale esa versión para usarla.") +
                          intacto);
}

// Builds a first store under a temporary name and moves it into place only once complete.
void Construye_Base(const QString& ruta) {
    const QString temporal = ruta + QStringLiteral(".nueva");
    QFile::remove(temporal);  // left by a start that was cut short
    QFile::remove(temporal + QStringLiteral("-journal"));
    try {
        Crea_Base_Nueva(*BaseDatos::OpenDatabase(temporal, Apertura::Creacion));
    } catch (const ErrorEjecucion& e) {
        QFile::remove(temporal);
        throw ErrorEjecucion(QStringLiteral("No se pudo crear la base de datos %1.\n%2")
                                 .arg(QDir::toNativeSeparators(ruta), e.texto()));
    }
    // A journal left beside a store that is gone belongs to no store: never apply it to this one.
    for (const char* sufijo : {"-wal", "-shm"}) QFile::remove(ruta + QLatin1String(sufijo));
    if (!QFile::rename(temporal, ruta)) {
        QFile::remove(temporal);
        No_Abre(ruta, QStringLiteral("No se pudo dejar la base nueva en su lugar."));
    }
    Sincroniza_Carpeta(QFileInfo(ruta).absolutePath());
}

}  // namespace

std::shared_ptr<BaseDatos> Abre_Base(const QString& ruta) {
    const QString carpeta = QFileInfo(ruta).absolutePath();
    if (!QFileInfo(carpeta).isWritable())
        No_Abre(ruta, QStringLiteral("No se puede escribir en la carpeta de datos %1: Zorta "
                                     "graba ahí la base de datos. Dé permiso de escritura o elija "
                                     "otra carpeta con la variable ZORTA_DATOS.")
                          .arg(QDir::toNativeSeparators(carpeta)));
    if (QFileInfo::exists(ruta) || QFileInfo(ruta).isSymLink())
        Verifica_Base(ruta);
    else
        Construye_Base(ruta);
    auto base = BaseDatos::OpenDatabase(ruta);
    const QStringList fallas = Migra_Esquema(*base);
    if (!fallas.isEmpty())
        dialogos().MsgBox(QStringLiteral("No se pudo actualizar la base de datos a esta versión de "
                                         "Zorta. Se intentará de nuevo al volver a abrirlo.\n") +
                              fallas.join(QLatin1Char('\n')),
                          vbExclamation, QStringLiteral("Actualización de la Base de Datos"));
    return base;
}

void Cierra_Base() {
    estado().Consulta_Actual.reset();
    estado().BaseDatos.reset();
}
