// Drives a grid view as the operator does, with real mouse and key events. Rows and columns
// count from 1; the view's window must be shown.
#pragma once

#include <QWidget>

class QComboBox;
class QTableView;

// Shows a screen while it is driven, and hides it before the screen goes: a screen's grids
// are gone before its views, which a hidden view no longer asks.
class Mostrada {
  public:
    explicit Mostrada(QWidget& pantalla) : pantalla_(pantalla) { pantalla_.show(); }
    ~Mostrada() { pantalla_.hide(); }

  private:
    QWidget& pantalla_;
};

void Pulsa_Celda(QTableView& vista, int fila, int columna);
void Doble_Pulsa_Celda(QTableView& vista, int fila, int columna);
// The drop-down open on a cell of the view; nullptr when none is.
QComboBox* Lista_Abierta(const QTableView& vista);
