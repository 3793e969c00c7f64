// "Seleccione Rut Alumno": the students of a course, from which the operator picks the rut of a
// sheet whose rut could not be read, or types it.
#pragma once

#include <QDialog>

#include "platform/grilla.h"

class QTableView;

class Frm_SoloRrut : public QDialog {
    Q_OBJECT
public:
    explicit Frm_SoloRrut(const QString& curso, QWidget* padre = nullptr);

    // Column 1 the name, column 2 the rut.
    Grilla Spr_Alumnos{0, 2};
    QString Rut_Manual;

    void Form_Load();
    // A click or double click on a row takes its rut and closes.
    void Spr_Alumnos_Click(int fila);
    void XPButton1_Click();

private:
    QString curso_;
    QTableView* vista_;
};
