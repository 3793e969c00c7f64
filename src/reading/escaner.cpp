// scaner.ini, the scan folder and the scanning program.
#include "reading/escaner.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTextStream>

#include "app/estado.h"
#include "platform/base_datos.h"
#include "platform/error_ejecucion.h"

QString Ruta_Scaner_Ini() {
    return QFileInfo(estado().BaseDatos->Ruta())
        .absoluteDir()
        .filePath(QStringLiteral("scaner.ini"));
}

QString Linea_Scaner_Ini(int linea) {
    QFile archivo(Ruta_Scaner_Ini());
    if (!archivo.open(QIODevice::ReadOnly | QIODevice::Text))
        throw ErrorEjecucion(
            QStringLiteral("No se encuentra el archivo de configuración del escáner %1. Debe "
                           "tener dos líneas: la carpeta de las imágenes y el programa de "
                           "escaneo.")
                .arg(QDir::toNativeSeparators(archivo.fileName())));
    QTextStream entrada(&archivo);
    QString texto;
    for (int i = 1; i <= linea; ++i) {
        if (entrada.atEnd())
            throw ErrorEjecucion(QStringLiteral("El archivo scaner.ini no tiene la línea %1 (%2).")
                                     .arg(linea)
                                     .arg(linea == 1 ? QStringLiteral("carpeta de las imágenes")
                                                     : QStringLiteral("programa de escaneo")));
        texto = entrada.readLine();
    }
    return texto;
}

QStringList Archivos_Carpeta(const QString& carpeta) {
    const QDir dir(carpeta);
    if (carpeta.trimmed().isEmpty() || !dir.exists())
        throw ErrorEjecucion(QStringLiteral("No existe la carpeta de escaneo \"%1\". Revise la "
                                            "línea 1 de scaner.ini o cree la carpeta.")
                                 .arg(QDir::toNativeSeparators(carpeta)));
    return dir.entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

bool Es_Bitmap(const QString& texto) {
    return texto.contains(QLatin1String(".bmp"), Qt::CaseInsensitive);
}

void Elimina_Bitmaps(const QString& carpeta) {
    const QDir dir(carpeta);
    for (const QString& nombre : Archivos_Carpeta(carpeta)) {
        const QString ruta = dir.filePath(nombre);
        if (Es_Bitmap(ruta) && !QFile::remove(ruta))
            throw ErrorEjecucion(QStringLiteral("No se pudo eliminar %1 de la carpeta de escaneo.")
                                     .arg(QDir::toNativeSeparators(ruta)));
    }
}

namespace {

// True when `ruta` names a program: an executable file, or a name on the search path.
bool Es_Programa(const QString& ruta) {
    if (!ruta.contains(u'/')) return !QStandardPaths::findExecutable(ruta).isEmpty();
    const QFileInfo archivo(ruta);
    return archivo.isFile() && archivo.isExecutable();
}

// The program and the arguments of a command line as it stands: the program is the shortest
// start of the line, up to a space or to its end, that names a program, so a path with spaces
// needs no quotes; what follows is split into arguments. A line whose start names no program
// is split whole, quotes and all.
std::pair<QString, QStringList> Partes_Linea(const QString& linea) {
    for (qsizetype fin = linea.indexOf(u' ');; fin = linea.indexOf(u' ', fin + 1)) {
        const QString inicio = fin < 0 ? linea : linea.left(fin);
        if (!inicio.trimmed().isEmpty() && Es_Programa(inicio))
            return {inicio, fin < 0 ? QStringList() : QProcess::splitCommand(linea.mid(fin + 1))};
        if (fin < 0) break;
    }
    QStringList partes = QProcess::splitCommand(linea);
    if (partes.isEmpty()) return {};
    const QString programa = partes.takeFirst();
    return {programa, partes};
}

}  // namespace

void Inicia_Escaner(const QString& linea_comando) {
    const auto [programa, argumentos] = Partes_Linea(linea_comando);
    if (programa.isEmpty() || !QProcess::startDetached(programa, argumentos))
        throw ErrorEjecucion(
            QStringLiteral(
                "No se pudo iniciar el programa de escaneo \"%1\" (línea 2 de scaner.ini).")
                .arg(linea_comando));
}
