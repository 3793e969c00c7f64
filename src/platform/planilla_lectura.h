// The reader of list files: the first sheet of a workbook (.xlsx, .xls) or a .csv text, cell by
// row and column letter, each cell as typed: the formula text where the cell has a formula,
// the text of a text cell, a number as it was keyed in.
#pragma once

#include <QString>
#include <vector>

class PlanillaLectura {
  public:
    // No list is longer than this many rows; columns A to Z are kept.
    static constexpr int kFilasMaximas = 10000;
    static constexpr int kColumnasMaximas = 26;

    // Reads rows 1 to `filas` of the first sheet, and nothing past them. A file that can't be
    // read, or a damaged workbook (one the spreadsheet program would refuse), throws
    // ErrorEjecucion naming the file: nothing of it comes back.
    static PlanillaLectura Abre(const QString& ruta, int filas = kFilasMaximas);

    // A cell by row (from 1) and column letters ("A", "D", "AB"); "" outside the sheet.
    QString Celda(int fila, const QString& columna) const;
    // The last row that holds any cell.
    int Filas() const { return static_cast<int>(filas_.size()); }

    // Column letters as a number from 1: "A" is 1, "Z" 26, "AA" 27; 0 for no letters.
    static int Numero_Columna(const QString& letras);

  private:
    friend class LectorXlsx;
    // Stores a cell; rows and columns from 1.
    void Fija(int fila, int columna, const QString& texto);
    static PlanillaLectura Lee_Xlsx(const QString& ruta, int filas);
    static PlanillaLectura Lee_Xls(const QString& ruta, int filas);
    static PlanillaLectura Lee_Csv(const QString& ruta, int filas);

    std::vector<std::vector<QString>> filas_;  // [fila - 1][columna - 1]
};

// A number written the way a spreadsheet shows it as typed: "12345678", "5.5", "0.1".
QString Numero_Como_Tecleado(double valor);
// A cell's text for a message: cut to `largo` characters, with "..." when it was longer.
QString Texto_Corto(const QString& texto, int largo = 60);
