// "Modifica Nota Manual": a student's answers typed by hand, stored with a new result whose
// grade comes from a fixed table of percentages; also removes the student from the test.
#pragma once

#include <QWidget>

#include "platform/grilla.h"

class QLabel;
class QPushButton;

class Frm_Mod_Nota : public QWidget {
    Q_OBJECT
  public:
    explicit Frm_Mod_Nota(QWidget* padre = nullptr);

    // The control array XPButton: save, delete, cancel.
    enum Boton { Grabar = 0, Eliminar = 1, Cancelar = 2 };
    void XPButton_Click(int indice);

    // The student's answers, one row a question, typed as letters.
    Grilla SprNotas{0, 1};
    // The key, one row a question; "X" a deleted question.
    Grilla SprPauta{0, 1};
    // Percentage 0..100 and its grade with a decimal comma.
    const Grilla Spr_Nota;

    QLabel* Lbl_RUT_Alumno;
    QLabel* Lbl_Nombre_Alumno;
    QLabel* LblProfesor;
    QLabel* LblPrueba;
    QLabel* LblAsignatura;
    QLabel* LblCurso;
    QPushButton* XPButton[3];

  private:
    void Form_Load();
    void Graba_Nota();
    void Elimina_Alumno();
    bool Valida_Respuestas();
    void Graba_Resultado(int buenas, int malas, int omitidas, int nulas);
    QVariant forma_;  // the form of the student's stored answers, 1 without them
};
