// Small pieces the grading screens build their layouts from.
#pragma once

#include <QString>
#include <functional>

class Grilla;
class QPushButton;
class QTableView;
class QWidget;

// A read-only view of a working grid.
QTableView* Vista_Lectura(Grilla& g, QWidget* padre);

class Grafico;
class QFormLayout;
class QLineEdit;

// The layout of a practice run screen: the students' grid on the left; on the right the read-only
// fields Txt_Base and TxtMaximo, "Exportar Excel" (XPButton1), "Imprimir" (XPButton2), "Salir",
// and the chart below. `campos` takes the rows a screen adds.
struct PiezasEnsayo {
    QLineEdit* Txt_Base;
    QLineEdit* TxtMaximo;
    QFormLayout* campos;
};
PiezasEnsayo Arma_Ensayo(QWidget* pantalla, Grilla& alumnos, Grafico& grafico,
                         const QString& etiqueta_base, std::function<void()> exporta,
                         std::function<void()> imprime);
