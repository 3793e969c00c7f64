// Grilla: the working grid of a screen. Text cells, rows and columns from 1, row 0 holding the
// column heads and column 0 the row heads; a cursor Row/Col with the Text under it. Numbers
// pass through it as text. A screen shows one through GrillaModelo.
#pragma once

#include <QString>
#include <functional>
#include <map>
#include <vector>

// Cell colours as the system writes them (red in the low byte).
enum ColorCelda : int {
    ColorRojo = 255,
    ColorAmarillo = 65535,
    ColorBlanco = 16777215,
    ColorNegro = 0,
};

class Grilla {
  public:
    Grilla(int filas = 0, int columnas = 0);

    int MaxRows() const { return filas_; }
    int MaxCols() const { return columnas_; }
    void SetMaxRows(int filas);
    void SetMaxCols(int columnas);

    // The cursor and the text under it.
    int Row = 0;
    int Col = 0;
    QString Text() const { return Celda(Row, Col); }
    void SetText(const QString& texto) { FijaCelda(Row, Col, texto); }

    // Direct access; a cell outside the grid reads as "", and a write there (of text or of a
    // colour) is an ErrorEjecucion: nothing a screen computes is dropped in silence.
    QString Celda(int fila, int columna) const;
    void FijaCelda(int fila, int columna, const QString& texto);

    // Removes `cantidad` rows from `fila` on; the rows below move up, MaxRows stays.
    void DeleteRows(int fila, int cantidad);
    // Empties every data cell; heads, sizes and spans stay.
    void Limpia();

    // Colours of one cell; -1 means the default (white back, black fore).
    int BackColor(int fila, int columna) const;
    int ForeColor(int fila, int columna) const;
    void SetBackColor(int fila, int columna, int color);
    void SetForeColor(int fila, int columna, int color);
    // Colours a whole data row.
    void SetBackColorFila(int fila, int color);

    struct Span {
        int columna, fila, columnas, filas;
    };
    void AddCellSpan(int columna, int fila, int columnas, int filas);
    const std::vector<Span>& Spans() const { return spans_; }

    // Who shows the grid is told of changes: of the shape, and of one cell.
    std::function<void()> al_cambiar_forma;
    std::function<void(int, int)> al_cambiar_celda;

  private:
    struct Colores {
        int fondo = -1;
        int letra = -1;
    };
    bool Dentro(int fila, int columna) const;
    void Exige_Dentro(int fila, int columna) const;
    void Avisa_Forma();

    int filas_ = 0;
    int columnas_ = 0;
    std::vector<std::vector<QString>> celdas_;  // [fila][columna], heads included
    std::map<std::pair<int, int>, Colores> colores_;
    std::vector<Span> spans_;
};
