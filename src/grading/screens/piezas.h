// Small pieces the grading screens build their layouts from.
#pragma once

#include <QString>
#include <functional>

class Grilla;
class QPushButton;
class QTableView;
class QWidget;

// A button named `nombre` that runs `comando` at the command boundary.
QPushButton* Boton_Orden(QWidget* padre, const QString& nombre, const QString& texto,
                         std::function<void()> comando);
// A read-only view of a working grid.
QTableView* Vista_Lectura(Grilla& g, QWidget* padre);
