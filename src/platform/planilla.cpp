// The spreadsheet layer: the workbook in memory and its operations.
#include "platform/planilla.h"

#include <xlsxwriter.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "platform/error_ejecucion.h"
#include "platform/planilla_lectura.h"

bool Planilla_Disponible() {
    QTemporaryDir carpeta;
    if (!carpeta.isValid()) return false;
    const QByteArray ruta =
        QDir(carpeta.path()).filePath(QStringLiteral("prueba.xlsx")).toLocal8Bit();
    lxw_workbook* libro = workbook_new(ruta.constData());
    if (!libro) return false;
    workbook_add_worksheet(libro, nullptr);
    return workbook_close(libro) == LXW_NO_ERROR && QFile::exists(QString::fromLocal8Bit(ruta));
}

// The last row of a sheet: a whole column runs down to it.
static constexpr int kUltimaFila = 1048576;

template <class F>
Rango& Rango::Cada(F cambio) {
    for (int f = area_.fila1; f <= area_.fila2; ++f)
        for (int c = area_.columna1; c <= area_.columna2; ++c) cambio(hoja_.celdas_[{f, c}]);
    return *this;
}

Rango& Rango::Interior_ColorIndex(int indice) {
    return Cada([&](CeldaHoja& c) { c.fondo = indice; });
}
Rango& Rango::Font_size(double tamano) {
    return Cada([&](CeldaHoja& c) { c.tamano = tamano; });
}
Rango& Rango::Font_Bold(bool negrita) {
    return Cada([&](CeldaHoja& c) { c.negrita = negrita; });
}
Rango& Rango::Font_ColorIndex(int indice) {
    return Cada([&](CeldaHoja& c) { c.color_letra = indice; });
}
Rango& Rango::Font_FontStyle(const QString& estilo) {
    return Cada([&](CeldaHoja& c) { c.estilo_letra = estilo; });
}
Rango& Rango::VerticalAlignment(int codigo) {
    return Cada([&](CeldaHoja& c) { c.alineacion_v = codigo; });
}
Rango& Rango::HorizontalAlignment(int codigo) {
    return Cada([&](CeldaHoja& c) { c.alineacion_h = codigo; });
}

// Digits with an optional sign and decimal point, and an optional "%" after them.
LecturaValor Lee_Valor(const QString& texto) {
    static const QRegularExpression numero(
        QStringLiteral("^\\s*([+-]?(?:\\d+(?:\\.(\\d*))?|\\.(\\d+)))\\s*(%?)\\s*$"));
    const auto m = numero.match(texto);
    if (!m.hasMatch()) return {};
    LecturaValor l{true, m.captured(1).toDouble(), QString()};
    if (!m.captured(4).isEmpty()) {
        const qsizetype decimales = m.captured(2).size() + m.captured(3).size();
        l.cifra /= 100;
        l.formato = decimales == 0 ? QStringLiteral("0%")
                                   : QStringLiteral("0.") + QString(decimales, u'0') + u'%';
    }
    return l;
}

// A merged block shows its top-left cell only: the value goes there alone.
Rango& Rango::Value(const QString& texto) {
    const LecturaValor l = Lee_Valor(texto);
    auto pon = [&](CeldaHoja& c) {
        c.valor = texto;
        c.numero = l.numero;
        c.cifra = l.cifra;
        c.formato = l.formato;
    };
    for (const Area& u : hoja_.uniones_)
        if (u == area_) {
            pon(hoja_.celdas_[{u.fila1, u.columna1}]);
            return *this;
        }
    return Cada(pon);
}

Rango& Rango::Value(double numero) {
    return Value(Numero_Como_Tecleado(numero));
}

// Merging drops every value but the top-left one, and any merge the new one overlaps.
Rango& Rango::Merge() {
    auto& uniones = hoja_.uniones_;
    std::erase_if(uniones, [&](const Area& u) {
        return u.fila1 <= area_.fila2 && area_.fila1 <= u.fila2 && u.columna1 <= area_.columna2 &&
               area_.columna1 <= u.columna2;
    });
    uniones.push_back(area_);
    Cada([&](CeldaHoja& c) {
        if (&c != &hoja_.celdas_[{area_.fila1, area_.columna1}]) c.valor.clear();
    });
    return *this;
}

Rango& Rango::ColumnWidth(double ancho) {
    for (int c = area_.columna1; c <= area_.columna2; ++c) hoja_.anchos_[c] = ancho;
    return *this;
}

Rango Hoja::Cells(int fila, int columna) {
    if (fila < 1 || columna < 1)
        throw ErrorEjecucion(
            QStringLiteral("Celda fuera de la hoja: %1, %2").arg(fila).arg(columna));
    return Rango(*this, {fila, columna, fila, columna});
}

Rango Hoja::Range(const QString& direccion) {
    static const QRegularExpression forma(
        QStringLiteral("^([A-Za-z]{1,3})(\\d*)(?::([A-Za-z]{1,3})(\\d*))?$"));
    const auto m = forma.match(direccion.trimmed());
    const bool columnas = m.hasMatch() && m.captured(2).isEmpty() && m.captured(4).isEmpty();
    const bool celdas = m.hasMatch() && !m.captured(2).isEmpty() &&
                        (m.captured(3).isEmpty() || !m.captured(4).isEmpty());
    if (!columnas && !celdas) throw ErrorEjecucion(QStringLiteral("Rango no válido: ") + direccion);
    const QString letras2 = m.captured(3).isEmpty() ? m.captured(1) : m.captured(3);
    const QString fila2 = m.captured(4).isEmpty() ? m.captured(2) : m.captured(4);
    Area a{columnas ? 1 : m.captured(2).toInt(), PlanillaLectura::Numero_Columna(m.captured(1)),
           columnas ? kUltimaFila : fila2.toInt(), PlanillaLectura::Numero_Columna(letras2)};
    if (a.fila1 < 1 || a.fila2 < a.fila1 || a.columna2 < a.columna1)
        throw ErrorEjecucion(QStringLiteral("Rango no válido: ") + direccion);
    return Rango(*this, a);
}

void Hoja::AddPicture(const QString& archivo, bool, bool, double izquierda, double arriba,
                      double ancho, double alto) {
    QFile f(archivo);
    if (!f.open(QIODevice::ReadOnly))
        throw ErrorEjecucion(QStringLiteral("No se puede abrir la imagen ") + archivo);
    imagenes_.push_back({f.readAll(), izquierda, arriba, ancho, alto});
}

const CeldaHoja* Hoja::Celda(int fila, int columna) const {
    const auto it = celdas_.find({fila, columna});
    return it == celdas_.end() ? nullptr : &it->second;
}

QString Hoja::Valor(int fila, int columna) const {
    const CeldaHoja* c = Celda(fila, columna);
    return c ? c->valor : QString();
}

Libro::Libro() {
    Worksheets_Add();
}

Hoja& Libro::Worksheets_Add() {
    ++creadas_;
    hojas_.insert(hojas_.begin(), std::make_unique<Hoja>(QStringLiteral("Hoja%1").arg(creadas_)));
    return *hojas_.front();
}

Hoja& Libro::Sheets(int indice) {
    if (indice < 1 || indice > Count())
        throw ErrorEjecucion(QStringLiteral("Subíndice fuera del intervalo"));
    return *hojas_[indice - 1];
}
