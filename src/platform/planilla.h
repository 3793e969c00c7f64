// The spreadsheet layer: an in-memory workbook with the operations the exports use (cells and
// ranges with their styles, merges, column widths, sheet names, pictures), written out by
// libxlsxwriter on Close. Colours are palette indexes of the classic 56-colour palette.
#pragma once

#include <QByteArray>
#include <QString>
#include <map>
#include <memory>
#include <vector>

// How a spreadsheet reads a text put in a cell: a number, with its format, or text.
struct LecturaValor {
    bool numero = false;
    double cifra = 0;
    QString formato;
};
LecturaValor Lee_Valor(const QString& texto);

// True when a workbook can be written here: the writer works and the temporary folder
// takes a file. The exports need both.
bool Planilla_Disponible();

// The alignment code of a centred cell, vertical and horizontal alike.
constexpr int xlCenter = -4108;

// Content and style of one sheet cell; -1, 0 and "" mean the default.
struct CeldaHoja {
    QString valor;        // as it was put in the cell
    bool numero = false;  // the sheet holds the number `cifra`, not the text
    double cifra = 0;     // a percentage as its fraction: "16.67%" is 0.1667
    QString formato;      // number format, "0.00%" for that percentage; "" general
    int fondo = -1;       // Interior.ColorIndex
    double tamano = 0;    // Font.size
    bool negrita = false;
    int color_letra = -1;  // Font.ColorIndex
    QString estilo_letra;  // Font.FontStyle; a text that names no style changes nothing
    int alineacion_v = 0;
    int alineacion_h = 0;
};

// A block of cells, rows and columns from 1, both corners included.
struct Area {
    int fila1, columna1, fila2, columna2;
    bool Contiene(int fila, int columna) const {
        return fila >= fila1 && fila <= fila2 && columna >= columna1 && columna <= columna2;
    }
    bool operator==(const Area&) const = default;
};

class Hoja;

// Cells(row, col) or Range(address): every setter acts on each cell of the area.
class Rango {
  public:
    Rango(Hoja& hoja, Area area) : hoja_(hoja), area_(area) {}
    Rango& Interior_ColorIndex(int indice);
    Rango& Font_size(double tamano);
    Rango& Font_Bold(bool negrita);
    Rango& Font_ColorIndex(int indice);
    Rango& Font_FontStyle(const QString& estilo);
    // Joins the area into one cell that keeps the top-left content.
    Rango& Merge();
    Rango& VerticalAlignment(int codigo);
    Rango& HorizontalAlignment(int codigo);
    // A text that reads as a number ("13", "4.5", "16.67%", "50 %") goes in as that number,
    // a percentage under a percent format, as the spreadsheet does with a typed value; any
    // other text stays text.
    Rango& Value(const QString& texto);
    Rango& Value(double numero);
    // Width of every column the area touches, in characters.
    Rango& ColumnWidth(double ancho);
    const Area& area() const { return area_; }

  private:
    template <class F>
    Rango& Cada(F cambio);
    Hoja& hoja_;
    Area area_;
};

class Hoja {
  public:
    explicit Hoja(QString nombre) : Name(std::move(nombre)) {}

    Rango Cells(int fila, int columna);
    // "A1", "b1:c1", "DR1:DV1", "A:A"; letters case-blind. ErrorEjecucion when malformed.
    Rango Range(const QString& direccion);
    // The chart picture: the file's bytes are taken now, so the file may go at once. Left, top,
    // width and height in points, as the spreadsheet measures them.
    void AddPicture(const QString& archivo, bool enlazada, bool guardada, double izquierda,
                    double arriba, double ancho, double alto);

    QString Name;

    struct Imagen {
        QByteArray png;
        double izquierda, arriba, ancho, alto;
    };
    // What the sheet holds, for the writer and for whoever checks a report.
    const CeldaHoja* Celda(int fila, int columna) const;
    QString Valor(int fila, int columna) const;
    const std::map<std::pair<int, int>, CeldaHoja>& Celdas() const { return celdas_; }
    const std::vector<Area>& Uniones() const { return uniones_; }
    const std::map<int, double>& Anchos() const { return anchos_; }
    const std::vector<Imagen>& Imagenes() const { return imagenes_; }

  private:
    friend class Rango;
    std::map<std::pair<int, int>, CeldaHoja> celdas_;  // (fila, columna)
    std::vector<Area> uniones_;
    std::map<int, double> anchos_;
    std::vector<Imagen> imagenes_;
};

// A new workbook holds one sheet, "Hoja1"; Worksheets_Add puts a new one in front of it.
class Libro {
  public:
    Libro();
    Hoja& Worksheets_Add();
    // Sheets by position from 1.
    Hoja& Sheets(int indice);
    int Count() const { return static_cast<int>(hojas_.size()); }
    // With `guardar` writes the workbook under `ruta`; ErrorEjecucion when it can't be written.
    void Close(bool guardar, const QString& ruta);

  private:
    std::vector<std::unique_ptr<Hoja>> hojas_;
    int creadas_ = 0;
};
