// "Correción General": all results of the current test with the course's lowest, highest and
// average grade and the deviation; tries out another grade scale before keeping it, shows one
// student's answers, removes a student, and exports the table to a spreadsheet.
#pragma once

#include <QWidget>

#include "grading/escala_notas.h"
#include "platform/grilla.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

class FrmEvaCorrecion : public QWidget {
    Q_OBJECT
  public:
    explicit FrmEvaCorrecion(QWidget* padre = nullptr);

    // One row a result: id, rut, name, right, wrong, omitted, null, points, performance,
    // form (then the proportional grade), grade (then the re-scaled one).
    Grilla SprEvaCorrec{1, 11};
    // One student's data and answers against the key.
    Grilla SpsSoloAlumno{0, 3};
    // What the spreadsheet export writes.
    Grilla Spr_Pauta_Respuesta{0, 11};
    TablaNotas Notas;
    // The row of SprEvaCorrec chosen last, 0 when none.
    int Fila_Activa = 0;

    QComboBox* CboAlumnos;
    QLineEdit* XminText;  // % of the points for the grade 4, 40..80
    QLineEdit* XmaxText;  // performance for the grade 7, 85..100
    QLineEdit* Txt_Minima_4;
    QLineEdit* Txt_Maxima_7;
    QLabel* LblMinima;
    QLabel* LblMaxima;
    QLabel* LblPromedio;
    QLabel* Lbl_Desviacion;
    QLabel* LblPrueba;
    QLabel* LblFecha;
    QLabel* LblCurso;
    QLabel* LblAsignatura;
    QLabel* LblProfesor;

    void CmdArri4_Click();
    void CmdAbajo1_Click();
    void CmdArri6_Click();
    void CmdAbajo2_Click();
    void CmdGrabaNuevaNota_Click();
    void CboAlumnos_Click();
    // Removes the student of Fila_Activa from the test.
    void XPButton4_Click();
    void XPButton1_Click();
    void XPButton2_Click();

  private:
    void Construye();
    QWidget* Panel_Escala();
    void Form_Load();
    void Carga_Alumnos_desde_Grilla();
    void Carga_Porcentajes();
    void Graba_Porcentajes_Nota(int16_t desde, int16_t hasta);
    void Recalcula_Nota(int16_t porcentaje);
    void Mueve_Porcentaje(QLineEdit* campo, int paso, int limite, const QString& mensaje);
    void Muestra_Cifras();
    bool Tabla_Vacia() const;
};
