// FrmCursos, "Mantenedor de Cursos": the courses a test names, each with its level and its
// number from the counter CURSO.
#pragma once

#include <QWidget>

class QComboBox;
class QLineEdit;
class QListWidget;

class FrmCursos : public QWidget {
    Q_OBJECT
  public:
    explicit FrmCursos(QWidget* padre = nullptr);

    void XPButAceptar_Click();
    void XPButton1_Click();          // delete
    void LstCursos_Click(int fila);  // from 0
    void TxtNivel_LostFocus();
    // Fills both lists: the courses by level, and the levels.
    void Carga_Curso();

    QLineEdit* TxtCurso;
    QLineEdit* TxtNivel;
    QComboBox* CboNivel;
    QListWidget* LstCursos;
};
