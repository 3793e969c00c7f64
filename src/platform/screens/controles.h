// Small pieces the screens are built from: command buttons that run inside
// the command boundary, key filters of text boxes, capitals as typed, grids in a table view.
#pragma once

#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>
#include <functional>
#include <vector>

class Grilla;

// A button whose click runs `comando` as one command (Ejecutar_Comando).
QPushButton* Boton(QWidget* padre, const QString& nombre, const QString& texto,
                   std::function<void()> comando);

struct DefBoton {
    const char* nombre;
    const char* texto;
    std::function<void()> comando;
};
// A column of command buttons (each as Boton), kept at the top.
QVBoxLayout* Columna_Botones(QWidget* padre, const std::vector<DefBoton>& botones);

// A text box with its object name.
QLineEdit* Caja(QWidget* padre, const QString& nombre);

// Filters the keys typed in a box, as a key-press handler does: `filtro` gets the character
// code (8 for backspace, 13 for Enter) and gives back the code to keep, or 0 to drop the key;
// a code turned into 13 is a refused key that makes the machine beep.
void Filtra_Teclas(QLineEdit* caja, std::function<int(int)> filtro);

// Turns every letter typed in the box into a capital.
void Mayusculas(QLineEdit* caja);

// Runs `accion` when the focus leaves the box.
void Al_Salir(QLineEdit* caja, std::function<void()> accion);

// A view of the grid; a click on a data row (from 1) calls `al_pulsar`, when there is one.
QTableView* Vista_Grilla(QWidget* padre, const QString& nombre, Grilla& grilla,
                         std::function<void(int)> al_pulsar);

// Shows the grid's corner head (row 0, column 0, such as "ALUMNOS") in the view's corner.
void Esquina_Grilla(QTableView* vista, const Grilla& grilla);
