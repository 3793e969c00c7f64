// The reader of list files: .xls through FreeXL, .csv as text (.xlsx in planilla_xlsx.cpp).
#include "platform/planilla_lectura.h"

#include <freexl.h>

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>
#include <algorithm>
#include <cmath>

#include "platform/error_ejecucion.h"

namespace {

constexpr qint64 kBytesTexto = 64 << 20;  // of a .csv list

[[noreturn]] void No_Se_Lee(const QString& ruta, const QString& motivo) {
    throw ErrorEjecucion(QStringLiteral("No se pudo leer la planilla %1: %2").arg(ruta, motivo));
}

}  // namespace

QString Numero_Como_Tecleado(double valor) {
    if (valor == std::floor(valor) && std::fabs(valor) < 1e15)
        return QString::number(static_cast<qint64>(valor));
    return QString::number(valor, 'g', 15);
}

QString Texto_Corto(const QString& texto, int largo) {
    return texto.size() <= largo ? texto : texto.left(largo) + QStringLiteral("...");
}

// Saturates past a million, far beyond the last column of any sheet.
int PlanillaLectura::Numero_Columna(const QString& letras) {
    int n = 0;
    for (const QChar c : letras) n = std::min(n * 26 + (c.toUpper().unicode() - u'A' + 1), 1 << 20);
    return n;
}

void PlanillaLectura::Fija(int fila, int columna, const QString& texto) {
    if (fila < 1 || columna < 1 || fila > kFilasMaximas || columna > kColumnasMaximas) return;
    if (static_cast<int>(filas_.size()) < fila) filas_.resize(fila);
    auto& f = filas_[fila - 1];
    if (static_cast<int>(f.size()) < columna) f.resize(columna);
    f[columna - 1] = texto;
}

QString PlanillaLectura::Celda(int fila, const QString& columna) const {
    const int c = Numero_Columna(columna);
    if (fila < 1 || fila > Filas() || c < 1) return {};
    const auto& f = filas_[fila - 1];
    return c <= static_cast<int>(f.size()) ? f[c - 1] : QString();
}

PlanillaLectura PlanillaLectura::Abre(const QString& ruta, int filas) {
    if (!QFile::exists(ruta)) No_Se_Lee(ruta, QStringLiteral("el archivo no existe"));
    if (!QFileInfo(ruta).isFile()) No_Se_Lee(ruta, QStringLiteral("no es un archivo común"));
    QFile f(ruta);
    if (!f.open(QIODevice::ReadOnly)) No_Se_Lee(ruta, f.errorString());
    const QByteArray firma = f.read(8);
    filas = std::clamp(filas, 0, kFilasMaximas);
    if (firma.startsWith("PK")) return Lee_Xlsx(ruta, filas);
    if (firma.startsWith("\xD0\xCF\x11\xE0")) return Lee_Xls(ruta, filas);
    return Lee_Csv(ruta, filas);
}

namespace {

QString Celda_Xls(const FreeXL_CellValue& c) {
    switch (c.type) {
        case FREEXL_CELL_INT:
            return QString::number(c.value.int_value);
        case FREEXL_CELL_DOUBLE:
            return Numero_Como_Tecleado(c.value.double_value);
        case FREEXL_CELL_TEXT:
        case FREEXL_CELL_SST_TEXT:
        case FREEXL_CELL_DATE:
        case FREEXL_CELL_DATETIME:
        case FREEXL_CELL_TIME:
            return QString::fromUtf8(c.value.text_value);
        default:
            return {};
    }
}

}  // namespace

// Old binary workbooks keep only the value of a formula cell; that value is what comes back.
PlanillaLectura PlanillaLectura::Lee_Xls(const QString& ruta, int limite) {
    const void* xls = nullptr;
    if (freexl_open(QFile::encodeName(ruta).constData(), &xls) != FREEXL_OK) {
        freexl_close(xls);
        No_Se_Lee(ruta, QStringLiteral("no es un libro .xls"));
    }
    PlanillaLectura hoja;
    unsigned int filas = 0;
    unsigned short columnas = 0;
    if (freexl_select_active_worksheet(xls, 0) == FREEXL_OK &&
        freexl_worksheet_dimensions(xls, &filas, &columnas) == FREEXL_OK)
        for (unsigned int f = 0; f < std::min<unsigned>(filas, limite); ++f)
            for (unsigned short c = 0; c < std::min<unsigned short>(columnas, kColumnasMaximas);
                 ++c) {
                FreeXL_CellValue celda;
                if (freexl_get_cell_value(xls, f, c, &celda) == FREEXL_OK)
                    hoja.Fija(static_cast<int>(f) + 1, c + 1, Celda_Xls(celda));
            }
    freexl_close(xls);
    return hoja;
}

namespace {

// The separator of a list: ";" when the first line has more of them than of ",".
QChar Separador(const QString& texto) {
    const QString primera = texto.section(u'\n', 0, 0);
    return primera.count(u';') > primera.count(u',') ? u';' : u',';
}

}  // namespace

// A text list: UTF-8, or Latin-1 when it isn't; fields between double quotes may hold the
// separator, line breaks and doubled quotes.
PlanillaLectura PlanillaLectura::Lee_Csv(const QString& ruta, int filas) {
    QFile f(ruta);
    if (!f.open(QIODevice::ReadOnly)) No_Se_Lee(ruta, f.errorString());
    if (f.size() > kBytesTexto)
        No_Se_Lee(ruta, QStringLiteral("pasa de %1 MB, más de lo que cabe en una lista")
                            .arg(kBytesTexto >> 20));
    const QByteArray bytes = f.read(kBytesTexto);
    QStringDecoder utf8(QStringDecoder::Utf8);
    QString texto = utf8(bytes);
    if (utf8.hasError()) texto = QString::fromLatin1(bytes);
    if (texto.startsWith(QChar(0xFEFF))) texto.remove(0, 1);
    const QChar sep = Separador(texto);
    PlanillaLectura hoja;
    int fila = 1, columna = 1;
    QString campo;
    bool comillas = false;
    for (qsizetype i = 0; i < texto.size() && fila <= filas; ++i) {
        const QChar c = texto[i];
        if (comillas && c == u'"' && i + 1 < texto.size() && texto[i + 1] == u'"')
            campo += texto[++i];
        else if (c == u'"')
            comillas = !comillas;
        else if (comillas || (c != sep && c != u'\n' && c != u'\r'))
            campo += c;
        else if (c == sep || c == u'\n') {
            if (columna <= kColumnasMaximas) hoja.Fija(fila, columna, campo);
            ++columna;
            campo.clear();
            if (c == u'\n') {
                ++fila;
                columna = 1;
            }
        }
    }
    if ((!campo.isEmpty() || columna > 1) && fila <= filas && columna <= kColumnasMaximas)
        hoja.Fija(fila, columna, campo);
    return hoja;
}
