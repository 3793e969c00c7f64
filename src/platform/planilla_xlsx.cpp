// The reader of .xlsx workbooks: libzip and QXmlStreamReader, each part streamed piece by
// piece, every size bounded by what a list can hold. Whatever the spreadsheet program would
// refuse (broken XML, a DTD, text that is not UTF-8, a missing or short shared-strings part, a
// reference out of the sheet) is damage, and nothing of the file is kept.
#include <zip.h>

#include <QFile>
#include <QXmlStreamReader>
#include <memory>

#include "platform/error_ejecucion.h"
#include "platform/planilla_lectura.h"

namespace {

constexpr qint64 kBytesParte = 64 << 20;  // uncompressed bytes read of one part
constexpr int kLargoTexto = 32767;        // characters of a cell
constexpr int kUltimaFila = 1048576;
constexpr int kUltimaColumna = 16384;  // XFD

// A damaged workbook: the reason, for the message that names the file.
struct Danado {
    QString motivo;
};

[[noreturn]] void Dano(const QString& motivo) {
    throw Danado{motivo};
}

// The workbook, a zip archive.
class Archivo_Zip {
  public:
    explicit Archivo_Zip(const QString& ruta) {
        int error = 0;
        zip_ = zip_open(QFile::encodeName(ruta).constData(), ZIP_RDONLY, &error);
        if (!zip_) Dano(QStringLiteral("no es un libro .xlsx"));
    }
    ~Archivo_Zip() { zip_discard(zip_); }
    Archivo_Zip(const Archivo_Zip&) = delete;
    Archivo_Zip& operator=(const Archivo_Zip&) = delete;
    zip_t* zip() const { return zip_; }

  private:
    zip_t* zip_;
};

// One part of the archive under an XML reader, fed as the reader asks for more.
class Parte {
  public:
    Parte(const Archivo_Zip& zip, const QString& nombre) : nombre_(nombre) {
        const QByteArray n = nombre.toUtf8();
        zip_stat_t st;
        if (zip_stat(zip.zip(), n.constData(), 0, &st) != 0) return;
        archivo_.reset(zip_fopen(zip.zip(), n.constData(), 0));
        if (!archivo_) Dano(QStringLiteral("no se puede abrir la parte %1").arg(nombre));
    }
    bool existe() const { return archivo_ != nullptr; }

    // The next token; a DTD, or any error of the XML, is damage. The end of the data once the
    // root element is closed is the end of the part.
    QXmlStreamReader::TokenType Siguiente() {
        for (;;) {
            const auto t = x.readNext();
            if (t == QXmlStreamReader::DTD)
                Dano(QStringLiteral("la parte %1 trae una DTD").arg(nombre_));
            if (t == QXmlStreamReader::StartElement) ++profundidad_;
            if (t == QXmlStreamReader::EndElement && --profundidad_ == 0) cerrada_ = true;
            if (t != QXmlStreamReader::Invalid) return t;
            if (x.error() != QXmlStreamReader::PrematureEndOfDocumentError)
                Dano(QStringLiteral("la parte %1 está dañada: %2").arg(nombre_, x.errorString()));
            if (Carga()) continue;
            if (!cerrada_) Dano(QStringLiteral("la parte %1 está cortada").arg(nombre_));
            fin_ = true;
            return QXmlStreamReader::EndDocument;
        }
    }
    // The text of an element with no children, bounded.
    QString Texto() {
        QString texto;
        for (int profundidad = 0;;) {
            const auto t = Siguiente();
            if (t == QXmlStreamReader::Characters) texto += x.text();
            if (texto.size() > kLargoTexto)
                Dano(QStringLiteral("una celda tiene más de %1 caracteres").arg(kLargoTexto));
            if (t == QXmlStreamReader::StartElement) ++profundidad;
            if (t == QXmlStreamReader::EndElement && profundidad-- == 0) return texto;
        }
    }
    // Walks to the end of the element just started.
    void Salta() {
        for (int profundidad = 0;;) {
            const auto t = Siguiente();
            if (t == QXmlStreamReader::StartElement) ++profundidad;
            if (t == QXmlStreamReader::EndElement && profundidad-- == 0) return;
        }
    }
    // True once the whole part has been read.
    bool Fin() const { return fin_ || x.tokenType() == QXmlStreamReader::EndDocument; }

    QXmlStreamReader x;

  private:
    bool Carga() {
        char trozo[1 << 16];
        const zip_int64_t n = archivo_ ? zip_fread(archivo_.get(), trozo, sizeof trozo) : 0;
        if (n < 0) Dano(QStringLiteral("la parte %1 no se puede descomprimir").arg(nombre_));
        if (n == 0) return false;
        if ((leidos_ += n) > kBytesParte)
            Dano(QStringLiteral("la parte %1 pasa de %2 MB, más de lo que cabe en una lista")
                     .arg(nombre_)
                     .arg(kBytesParte >> 20));
        x.addData(QByteArray(trozo, static_cast<qsizetype>(n)));
        return true;
    }

    QString nombre_;
    std::unique_ptr<zip_file_t, int (*)(zip_file_t*)> archivo_{nullptr, zip_fclose};
    qint64 leidos_ = 0;
    int profundidad_ = 0;
    bool cerrada_ = false;
    bool fin_ = false;
};

// Reads a part to its end, handing each start element to `elemento`.
template <typename F>
void Recorre(Parte& p, F&& elemento) {
    while (!p.Fin())
        if (p.Siguiente() == QXmlStreamReader::StartElement) elemento();
}

// The text of a string item (<si>, <is>): its runs joined, phonetic runs left out.
QString Texto_Rico(Parte& p) {
    QString texto;
    for (int profundidad = 0;;) {
        const auto t = p.Siguiente();
        if (t == QXmlStreamReader::StartElement && p.x.name() == u"rPh") {
            p.Salta();
        } else if (t == QXmlStreamReader::StartElement && p.x.name() == u"t") {
            texto += p.Texto();
            if (texto.size() > kLargoTexto)
                Dano(QStringLiteral("una celda tiene más de %1 caracteres").arg(kLargoTexto));
        } else if (t == QXmlStreamReader::StartElement) {
            ++profundidad;
        } else if (t == QXmlStreamReader::EndElement && profundidad-- == 0) {
            return texto;
        }
    }
}

QStringList Textos_Compartidos(Parte& p) {
    QStringList textos;
    if (!p.existe()) return textos;
    Recorre(p, [&] {
        if (p.x.name() == u"si") textos << Texto_Rico(p);
    });
    return textos;
}

// The path inside the archive of the workbook's first sheet.
QString Ruta_Primera_Hoja(const Archivo_Zip& zip) {
    QString id, destino;
    Parte libro(zip, QStringLiteral("xl/workbook.xml"));
    if (!libro.existe()) Dano(QStringLiteral("falta la parte xl/workbook.xml"));
    Recorre(libro, [&] {
        if (id.isEmpty() && libro.x.name() == u"sheet")
            for (const auto& a : libro.x.attributes())
                if (a.name() == u"id") id = a.value().toString();
    });
    Parte rel(zip, QStringLiteral("xl/_rels/workbook.xml.rels"));
    if (!rel.existe()) Dano(QStringLiteral("falta la parte xl/_rels/workbook.xml.rels"));
    Recorre(rel, [&] {
        if (destino.isEmpty() && !id.isEmpty() && rel.x.attributes().value("Id") == id)
            destino = rel.x.attributes().value("Target").toString();
    });
    if (destino.isEmpty()) return QStringLiteral("xl/worksheets/sheet1.xml");
    return destino.startsWith(u'/') ? destino.mid(1) : QStringLiteral("xl/") + destino;
}

// "AB12": column 28. A reference out of the sheet (past XFD1048576) is damage.
int Columna_De(QStringView ref) {
    qsizetype letras = 0;
    while (letras < ref.size() && ref[letras] >= u'A' && ref[letras] <= u'Z') ++letras;
    bool ok = false;
    const int fila = ref.mid(letras).toInt(&ok);
    const int columna =
        letras <= 3 ? PlanillaLectura::Numero_Columna(ref.left(letras).toString()) : 0;
    if (!ok || fila < 1 || fila > kUltimaFila || columna < 1 || columna > kUltimaColumna)
        Dano(QStringLiteral("la referencia de celda \"%1\" está fuera de la hoja")
                 .arg(Texto_Corto(ref.toString(), 20)));
    return columna;
}

}  // namespace

// Walks the <sheetData> of the first sheet up to the last row asked for.
class LectorXlsx {
  public:
    LectorXlsx(PlanillaLectura& hoja, const QStringList& compartidos, bool hay_compartidos,
               int filas)
        : hoja_(hoja),
          compartidos_(compartidos),
          hay_compartidos_(hay_compartidos),
          filas_(filas) {}

    void Lee(Parte& p) {
        while (!p.Fin()) {
            if (p.Siguiente() != QXmlStreamReader::StartElement) continue;
            if (p.x.name() == u"row" && !Fila(p)) return;
            if (p.x.name() == u"c") Celda(p);
        }
    }

  private:
    // False past the last row asked for: the rest of the sheet is not read.
    bool Fila(Parte& p) {
        const auto r = p.x.attributes().value("r");
        bool ok = true;
        fila_ = r.isEmpty() ? fila_ + 1 : r.toInt(&ok);
        if (!ok || fila_ < 1 || fila_ > kUltimaFila)
            Dano(QStringLiteral("el número de fila \"%1\" está fuera de la hoja")
                     .arg(Texto_Corto(r.toString(), 20)));
        columna_ = 0;
        return fila_ <= filas_;
    }

    void Celda(Parte& p) {
        const QString ref = p.x.attributes().value("r").toString();
        const QString tipo = p.x.attributes().value("t").toString();
        columna_ = ref.isEmpty() ? columna_ + 1 : Columna_De(ref);
        if (columna_ > kUltimaColumna) Dano(QStringLiteral("una fila pasa de la columna XFD"));
        QString valor, formula, en_linea;
        for (;;) {
            const auto t = p.Siguiente();
            if (t == QXmlStreamReader::EndElement) break;
            if (t != QXmlStreamReader::StartElement) continue;
            if (p.x.name() == u"v")
                valor = p.Texto();
            else if (p.x.name() == u"f")
                formula = p.Texto();
            else if (p.x.name() == u"is")
                en_linea = Texto_Rico(p);
            else
                p.Salta();
        }
        const QString texto = formula.isEmpty() ? Literal(tipo, valor, en_linea) : u'=' + formula;
        if (!texto.isEmpty() && fila_ <= filas_ && columna_ <= PlanillaLectura::kColumnasMaximas)
            hoja_.Fija(fila_, columna_, texto);
    }

    QString Literal(const QString& tipo, const QString& valor, const QString& en_linea) const {
        if (tipo == u"s") return Compartido(valor);
        if (tipo == u"inlineStr") return en_linea;
        if (tipo == u"b") return valor == u"1" ? QStringLiteral("TRUE") : QStringLiteral("FALSE");
        if (tipo.isEmpty() || tipo == u"n") {
            bool ok = false;
            const double d = valor.toDouble(&ok);
            return ok ? Numero_Como_Tecleado(d) : valor;
        }
        return valor;  // "str", "e", "d": the text as stored
    }

    QString Compartido(const QString& valor) const {
        if (!hay_compartidos_) Dano(QStringLiteral("falta la parte de textos compartidos"));
        bool ok = false;
        const int i = valor.toInt(&ok);
        if (!ok || i < 0 || i >= compartidos_.size())
            Dano(QStringLiteral("una celda apunta al texto compartido \"%1\", que no existe")
                     .arg(Texto_Corto(valor, 20)));
        return compartidos_[i];
    }

    PlanillaLectura& hoja_;
    const QStringList& compartidos_;
    bool hay_compartidos_;
    int filas_;
    int fila_ = 0;
    int columna_ = 0;
};

PlanillaLectura PlanillaLectura::Lee_Xlsx(const QString& ruta, int filas) {
    try {
        PlanillaLectura hoja;
        const Archivo_Zip zip(ruta);
        Parte compartidos(zip, QStringLiteral("xl/sharedStrings.xml"));
        const bool hay_compartidos = compartidos.existe();
        const QStringList textos = Textos_Compartidos(compartidos);
        Parte datos(zip, Ruta_Primera_Hoja(zip));
        if (!datos.existe()) Dano(QStringLiteral("el libro no tiene hojas"));
        LectorXlsx(hoja, textos, hay_compartidos, filas).Lee(datos);
        return hoja;
    } catch (const Danado& d) {
        throw ErrorEjecucion(QStringLiteral("No se pudo leer la planilla %1: el libro está dañado "
                                            "(%2). No se cargó nada de él.")
                                 .arg(ruta, d.motivo));
    }
}
