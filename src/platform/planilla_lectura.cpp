// The reader of list files: .xlsx through libzip and QXmlStreamReader, .xls through FreeXL,
// .csv as text.
#include "platform/planilla_lectura.h"

#include <freexl.h>
#include <zip.h>

#include <QFile>
#include <QHash>
#include <QStringDecoder>
#include <QXmlStreamReader>
#include <cmath>
#include <memory>

#include "platform/error_ejecucion.h"

namespace {

[[noreturn]] void No_Se_Lee(const QString& ruta, const QString& motivo) {
    throw ErrorEjecucion(QStringLiteral("No se pudo leer la planilla %1: %2").arg(ruta, motivo));
}

// The files of a workbook, which is a zip archive.
class Archivo_Zip {
  public:
    explicit Archivo_Zip(const QString& ruta) : ruta_(ruta) {
        int error = 0;
        zip_ = zip_open(QFile::encodeName(ruta).constData(), ZIP_RDONLY, &error);
        if (!zip_) No_Se_Lee(ruta, QStringLiteral("no es un libro .xlsx"));
    }
    ~Archivo_Zip() { zip_discard(zip_); }
    Archivo_Zip(const Archivo_Zip&) = delete;
    Archivo_Zip& operator=(const Archivo_Zip&) = delete;

    // The whole entry, or an empty array when the archive doesn't hold it.
    QByteArray Entrada(const QString& nombre) const {
        zip_stat_t st;
        const QByteArray n = nombre.toUtf8();
        if (zip_stat(zip_, n.constData(), 0, &st) != 0) return {};
        std::unique_ptr<zip_file_t, int (*)(zip_file_t*)> f(zip_fopen(zip_, n.constData(), 0),
                                                            zip_fclose);
        if (!f) No_Se_Lee(ruta_, nombre);
        QByteArray datos(static_cast<qsizetype>(st.size), Qt::Uninitialized);
        if (zip_fread(f.get(), datos.data(), st.size) != static_cast<zip_int64_t>(st.size))
            No_Se_Lee(ruta_, nombre);
        return datos;
    }

  private:
    QString ruta_;
    zip_t* zip_;
};

// The text of the element the reader stands on, its runs joined (<t>, <r><t>), phonetic runs out.
QString Texto_Rico(QXmlStreamReader& x) {
    QString texto;
    const QString fin = x.name().toString();
    int profundidad = 0;
    while (!x.atEnd()) {
        x.readNext();
        if (x.isStartElement() && x.name() == u"rPh")
            x.skipCurrentElement();
        else if (x.isStartElement() && x.name() == u"t")
            texto += x.readElementText();
        else if (x.isStartElement())
            ++profundidad;
        else if (x.isEndElement() && profundidad == 0 && x.name() == fin)
            break;
        else if (x.isEndElement())
            --profundidad;
    }
    return texto;
}

QStringList Textos_Compartidos(const QByteArray& xml) {
    QStringList textos;
    QXmlStreamReader x(xml);
    while (!x.atEnd())
        if (x.readNext() == QXmlStreamReader::StartElement && x.name() == u"si")
            textos << Texto_Rico(x);
    return textos;
}

// The path inside the archive of the workbook's first sheet.
QString Ruta_Primera_Hoja(const Archivo_Zip& zip) {
    QString id;
    QXmlStreamReader libro(zip.Entrada(QStringLiteral("xl/workbook.xml")));
    while (id.isEmpty() && !libro.atEnd())
        if (libro.readNext() == QXmlStreamReader::StartElement && libro.name() == u"sheet")
            for (const auto& a : libro.attributes())
                if (a.name() == u"id") id = a.value().toString();
    QXmlStreamReader rel(zip.Entrada(QStringLiteral("xl/_rels/workbook.xml.rels")));
    while (!rel.atEnd())
        if (rel.readNext() == QXmlStreamReader::StartElement &&
            rel.attributes().value("Id") == id) {
            const QString destino = rel.attributes().value("Target").toString();
            return destino.startsWith(u'/') ? destino.mid(1) : QStringLiteral("xl/") + destino;
        }
    return QStringLiteral("xl/worksheets/sheet1.xml");
}

// The column of a reference such as "AB12".
int Columna_De(const QString& ref) {
    qsizetype i = 0;
    while (i < ref.size() && ref[i].isLetter()) ++i;
    return PlanillaLectura::Numero_Columna(ref.left(i));
}

}  // namespace

// Walks the <sheetData> of one sheet; cells without a reference follow the one before.
class LectorXlsx {
  public:
    LectorXlsx(PlanillaLectura& hoja, const QStringList& compartidos)
        : hoja_(hoja), compartidos_(compartidos) {}

    void Lee(const QByteArray& xml) {
        QXmlStreamReader x(xml);
        while (!x.atEnd()) {
            x.readNext();
            if (!x.isStartElement()) continue;
            if (x.name() == u"row")
                Fila(x);
            else if (x.name() == u"c")
                Celda(x);
        }
        if (x.hasError()) throw ErrorEjecucion(QStringLiteral("Hoja dañada: ") + x.errorString());
    }

  private:
    void Fila(QXmlStreamReader& x) {
        const auto r = x.attributes().value("r");
        fila_ = r.isEmpty() ? fila_ + 1 : r.toInt();
        columna_ = 0;
    }

    void Celda(QXmlStreamReader& x) {
        const QString ref = x.attributes().value("r").toString();
        const QString tipo = x.attributes().value("t").toString();
        if (ref.isEmpty())
            ++columna_;
        else
            columna_ = Columna_De(ref);
        QString valor, formula, en_linea;
        while (x.readNextStartElement()) {
            if (x.name() == u"v")
                valor = x.readElementText();
            else if (x.name() == u"f")
                formula = x.readElementText();
            else if (x.name() == u"is")
                en_linea = Texto_Rico(x);
            else
                x.skipCurrentElement();
        }
        const QString texto = formula.isEmpty() ? Literal(tipo, valor, en_linea) : u'=' + formula;
        if (!texto.isEmpty()) hoja_.Fija(fila_, columna_, texto);
    }

    QString Literal(const QString& tipo, const QString& valor, const QString& en_linea) const {
        if (tipo == u"s") return compartidos_.value(valor.toInt());
        if (tipo == u"inlineStr") return en_linea;
        if (tipo == u"b") return valor == u"1" ? QStringLiteral("TRUE") : QStringLiteral("FALSE");
        if (tipo.isEmpty() || tipo == u"n") {
            bool ok = false;
            const double d = valor.toDouble(&ok);
            return ok ? Numero_Como_Tecleado(d) : valor;
        }
        return valor;  // "str", "e", "d": the text as stored
    }

    PlanillaLectura& hoja_;
    const QStringList& compartidos_;
    int fila_ = 0;
    int columna_ = 0;
};

QString Numero_Como_Tecleado(double valor) {
    if (valor == std::floor(valor) && std::fabs(valor) < 1e15)
        return QString::number(static_cast<qint64>(valor));
    return QString::number(valor, 'g', 15);
}

int PlanillaLectura::Numero_Columna(const QString& letras) {
    int n = 0;
    for (const QChar c : letras) n = n * 26 + (c.toUpper().unicode() - u'A' + 1);
    return n;
}

void PlanillaLectura::Fija(int fila, int columna, const QString& texto) {
    if (fila < 1 || columna < 1) return;
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

PlanillaLectura PlanillaLectura::Abre(const QString& ruta) {
    if (!QFile::exists(ruta)) No_Se_Lee(ruta, QStringLiteral("el archivo no existe"));
    QFile f(ruta);
    if (!f.open(QIODevice::ReadOnly)) No_Se_Lee(ruta, f.errorString());
    const QByteArray firma = f.read(8);
    if (firma.startsWith("PK")) return Lee_Xlsx(ruta);
    if (firma.startsWith("\xD0\xCF\x11\xE0")) return Lee_Xls(ruta);
    return Lee_Csv(ruta);
}

PlanillaLectura PlanillaLectura::Lee_Xlsx(const QString& ruta) {
    PlanillaLectura hoja;
    const Archivo_Zip zip(ruta);
    const QStringList compartidos =
        Textos_Compartidos(zip.Entrada(QStringLiteral("xl/sharedStrings.xml")));
    const QByteArray xml = zip.Entrada(Ruta_Primera_Hoja(zip));
    if (xml.isEmpty()) No_Se_Lee(ruta, QStringLiteral("el libro no tiene hojas"));
    LectorXlsx(hoja, compartidos).Lee(xml);
    return hoja;
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
PlanillaLectura PlanillaLectura::Lee_Xls(const QString& ruta) {
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
        for (unsigned int f = 0; f < filas; ++f)
            for (unsigned short c = 0; c < columnas; ++c) {
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
PlanillaLectura PlanillaLectura::Lee_Csv(const QString& ruta) {
    QFile f(ruta);
    if (!f.open(QIODevice::ReadOnly)) No_Se_Lee(ruta, f.errorString());
    const QByteArray bytes = f.readAll();
    QStringDecoder utf8(QStringDecoder::Utf8);
    QString texto = utf8(bytes);
    if (utf8.hasError()) texto = QString::fromLatin1(bytes);
    if (texto.startsWith(QChar(0xFEFF))) texto.remove(0, 1);
    const QChar sep = Separador(texto);
    PlanillaLectura hoja;
    int fila = 1, columna = 1;
    QString campo;
    bool comillas = false;
    for (qsizetype i = 0; i < texto.size(); ++i) {
        const QChar c = texto[i];
        if (comillas && c == u'"' && i + 1 < texto.size() && texto[i + 1] == u'"')
            campo += texto[++i];
        else if (c == u'"')
            comillas = !comillas;
        else if (comillas || (c != sep && c != u'\n' && c != u'\r'))
            campo += c;
        else if (c == sep || c == u'\n') {
            hoja.Fija(fila, columna++, campo);
            campo.clear();
            if (c == u'\n') {
                ++fila;
                columna = 1;
            }
        }
    }
    if (!campo.isEmpty() || columna > 1) hoja.Fija(fila, columna, campo);
    return hoja;
}
