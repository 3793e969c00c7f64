// FrmAlumnos, "Mantención Alumnos": the students, one at a time by hand, or the whole list
// loaded from a spreadsheet, which replaces the students and the courses.
#pragma once

#include <QWidget>

#include "platform/grilla.h"

class QComboBox;
class QLineEdit;
class QTableView;

class FrmAlumnos : public QWidget {
    Q_OBJECT
  public:
    explicit FrmAlumnos(QWidget* padre = nullptr);

    // Commands; each runs inside the command boundary when its button is pressed.
    void XPButAceptar_Click();
    void XPButElimina_Click();
    void XPButActualiza_Click();
    void CmdCarga_Click();
    // A search on every change of the box: a rut from its start.
    void txtBuscaRut_Change();
    // A click on row `fila` (from 1) of the grid.
    void SprAlumnos_Click(int fila);

    void Carga_Grilla_Alumnos();
    void Carga_Masiva_Por_Archivo(const QString& ruta);

    QLineEdit* TxtRut;
    QLineEdit* TxtNombre;
    QLineEdit* TxtCurso;
    QComboBox* CboCurso;
    QLineEdit* txtBuscaRut;
    Grilla SprAlumnos{0, 3};

  private:
    void Form_Load();
    void Carga_Cursos();
    void Agrega_Alumno(const QString& rut, const QString& nombre, const QString& curso);
    bool Falta(QLineEdit* caja, const QString& texto);
    void Inserta_Alumno(const QString& rut);
    void Limpia_Campos();
    QTableView* vista_;
};
