// "Correccion de Alternativas": changes a test's key after its sheets were corrected, either the
// right alternative of a question or the question taken out altogether, form by form. The new
// grades are shown first (XPButton1) and stored on a second command (XPButton2).
#pragma once

#include <QWidget>

#include "grading/escala_notas.h"
#include "platform/grilla.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

class Frm_Correccion : public QWidget {
    Q_OBJECT
  public:
    explicit Frm_Correccion(QWidget* padre = nullptr);

    // The key of the chosen form: question, letter ("X" a deleted question).
    Grilla Spr_Respuestas{0, 2};
    // The students of the form: id, rut, name, right, wrong, omitted, null, points, %, grade.
    Grilla SprEvaCorrec{0, 10};
    // One student's answers as letters, during the recomputation.
    Grilla Spr_Resp_Alumno{0, 2};
    // This screen's grade table, on the test's own percentage for the grade 4.0.
    TablaNotas Notas;

    QComboBox* CboFormas;
    QLineEdit* TxtForma;
    QLabel* LblNombrePrueba;
    QLabel* Lbl_Asignatura;
    QLabel* Lbl_Ajuste_40;
    QListWidget* Lst_Eliminadas;
    QPushButton* XPButton1;
    QPushButton* XPButton2;

    void CboFormas_Click();
    void Spr_Respuestas_DblClick(int fila);
    // XPButton1: the new counts and grades on the screen only.
    void Recorrige_Pruebas();
    // XPButton2: the key and the results to the store.
    void XPButton2_Click();

  private:
    void Construye();
    void Form_Load();
    void Carga_Forma(const QString& forma);
    void Carga_Grilla_Respuesta(const QString& forma);
    void Carga_Alumnos_Pantalla(const QString& forma);
    void Modifica_Alternativa(int fila);
    void Elimina_Pregunta(int fila);
    void Cuenta_Alumno(int fila);
    void Grabar_Nueva_Pauta();
    void Grabar_Nuevas_Notas_Alumnos();
};
