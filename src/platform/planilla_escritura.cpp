// The spreadsheet layer: a workbook in memory written out by libxlsxwriter.
#include <xlsxwriter.h>

#include <QFile>
#include <QHash>
#include <QImage>

#include "platform/error_ejecucion.h"
#include "platform/planilla.h"

namespace {

// The colours of the classic palette that the reports use.
lxw_color_t Color_Paleta(int indice) {
    switch (indice) {
        case 1:
            return 0x000000;
        case 2:
            return 0xFFFFFF;
        case 41:
            return 0x3366FF;
    }
    throw ErrorEjecucion(QStringLiteral("Color de paleta no disponible: %1").arg(indice));
}

class Escritor {
  public:
    explicit Escritor(lxw_workbook* libro) : libro_(libro) {}

    void Escribe(const Hoja& hoja) {
        const QByteArray nombre = hoja.Name.toUtf8();
        lxw_worksheet* h = workbook_add_worksheet(libro_, nombre.constData());
        if (!h) throw ErrorEjecucion(QStringLiteral("Nombre de hoja no válido: ") + hoja.Name);
        for (const auto& [columna, ancho] : hoja.Anchos())
            worksheet_set_column(h, columna - 1, columna - 1, ancho, nullptr);
        for (const auto& [pos, celda] : hoja.Celdas()) {
            const Area* u = Union(hoja, pos.first, pos.second);
            if (!u)
                Celda(h, pos.first - 1, pos.second - 1, celda);
            else if (u->fila1 == pos.first && u->columna1 == pos.second)
                Une(h, *u, celda);
        }
        for (const Hoja::Imagen& im : hoja.Imagenes()) Imagen(h, im);
    }

  private:
    static const Area* Union(const Hoja& hoja, int fila, int columna) {
        for (const Area& u : hoja.Uniones())
            if (u.Contiene(fila, columna)) return &u;
        return nullptr;
    }

    lxw_format* Formato(const CeldaHoja& c) {
        const QString clave = QStringLiteral("%1|%2|%3|%4|%5|%6|%7")
                                  .arg(c.fondo)
                                  .arg(c.tamano)
                                  .arg(c.negrita)
                                  .arg(c.color_letra)
                                  .arg(c.alineacion_v)
                                  .arg(c.alineacion_h)
                                  .arg(c.formato);
        if (lxw_format* f = formatos_.value(clave)) return f;
        lxw_format* f = workbook_add_format(libro_);
        if (c.fondo > 0) {
            format_set_pattern(f, LXW_PATTERN_SOLID);
            format_set_bg_color(f, Color_Paleta(c.fondo));
        }
        if (c.tamano > 0) format_set_font_size(f, c.tamano);
        if (c.negrita) format_set_bold(f);
        if (c.color_letra > 0) format_set_font_color(f, Color_Paleta(c.color_letra));
        if (c.alineacion_v == xlCenter) format_set_align(f, LXW_ALIGN_VERTICAL_CENTER);
        if (c.alineacion_h == xlCenter) format_set_align(f, LXW_ALIGN_CENTER);
        if (!c.formato.isEmpty()) format_set_num_format(f, c.formato.toUtf8().constData());
        formatos_.insert(clave, f);
        return f;
    }

    void Celda(lxw_worksheet* h, int fila, int columna, const CeldaHoja& c) {
        lxw_format* f = Formato(c);
        const QByteArray texto = c.valor.toUtf8();
        lxw_error e = c.numero ? worksheet_write_number(h, fila, columna, c.cifra, f)
                      : texto.isEmpty()
                          ? worksheet_write_blank(h, fila, columna, f)
                          : worksheet_write_string(h, fila, columna, texto.constData(), f);
        Verifica(e);
    }

    // A merged single cell is a plain cell in the file.
    void Une(lxw_worksheet* h, const Area& u, const CeldaHoja& c) {
        if (u.fila1 == u.fila2 && u.columna1 == u.columna2)
            return Celda(h, u.fila1 - 1, u.columna1 - 1, c);
        lxw_format* f = Formato(c);
        Verifica(worksheet_merge_range(h, u.fila1 - 1, u.columna1 - 1, u.fila2 - 1, u.columna2 - 1,
                                       "", f));
        if (!c.valor.isEmpty()) Celda(h, u.fila1 - 1, u.columna1 - 1, c);
    }

    // Points to pixels at 96 per inch; the picture is scaled to the size asked.
    void Imagen(lxw_worksheet* h, const Hoja::Imagen& im) {
        QImage dibujo;
        if (!dibujo.loadFromData(im.png) || dibujo.isNull())
            throw ErrorEjecucion(QStringLiteral("La imagen no se puede leer"));
        lxw_image_options o{};
        o.x_offset = static_cast<int32_t>(im.izquierda * 4 / 3);
        o.y_offset = static_cast<int32_t>(im.arriba * 4 / 3);
        o.x_scale = im.ancho * 4 / 3 / dibujo.width();
        o.y_scale = im.alto * 4 / 3 / dibujo.height();
        Verifica(worksheet_insert_image_buffer_opt(
            h, 0, 0, reinterpret_cast<const unsigned char*>(im.png.constData()),
            static_cast<size_t>(im.png.size()), &o));
    }

    static void Verifica(lxw_error e) {
        if (e != LXW_NO_ERROR) throw ErrorEjecucion(QString::fromUtf8(lxw_strerror(e)));
    }

    lxw_workbook* libro_;
    QHash<QString, lxw_format*> formatos_;
};

}  // namespace

void Libro::Close(bool guardar, const QString& ruta) {
    if (!guardar) return;
    const QByteArray archivo = QFile::encodeName(ruta);
    lxw_workbook* libro = workbook_new(archivo.constData());
    if (!libro) throw ErrorEjecucion(QStringLiteral("No se puede crear ") + ruta);
    try {
        Escritor escritor(libro);
        for (const auto& hoja : hojas_) escritor.Escribe(*hoja);
    } catch (...) {
        workbook_close(libro);
        QFile::remove(ruta);
        throw;
    }
    const lxw_error e = workbook_close(libro);
    if (e != LXW_NO_ERROR)
        throw ErrorEjecucion(QStringLiteral("No se puede grabar ") + ruta + QStringLiteral(": ") +
                             QString::fromUtf8(lxw_strerror(e)));
}
