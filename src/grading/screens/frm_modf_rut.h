// "Modificador de Rut / Forma": puts right the rut or the form of a sheet the reader got wrong,
// rewriting the student's rows under it. Opened from the test list for a marked row.
#pragma once

#include <QDialog>

#include "platform/grilla.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

class FrmModfRut : public QDialog {
    Q_OBJECT
public:
    // `resumen` is the test list's student grid, whose row Fila_Enmienda shows the change.
    explicit FrmModfRut(Grilla* resumen = nullptr, QWidget* padre = nullptr);

    QLabel* LblRutaModif;
    QLineEdit* TxtRutModificado;
    QPushButton* XPButModifica;
    QLabel* LblForma;
    QComboBox* CmbForma;
    QPushButton* XPButMoForma;
    QPushButton* XPButCancelar;
    Grilla SprPauta{0, 2};
    Grilla SprRespuestas{0, 2};

    void XPButModifica_Click();
    void XPButMoForma_Click();
    void Recorregir_Prueba_Nueva_Forma();

private:
    void Form_Load();
    void Carga_Num_Forma();
    void Grabar_Resultados_Alumnos(const QString& rut, int buenas, int malas, int omitidas, int nulas, int total,
                                   const QString& forma);
    Grilla* resumen_;
};
