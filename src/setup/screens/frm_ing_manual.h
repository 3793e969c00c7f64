// "Ingreso manual": the key of one form typed on the screen, one letter a question from a
// drop-down of the test's alternatives.
#pragma once

#include <QWidget>

#include "platform/grilla.h"

class QComboBox;
class QLabel;
class QPushButton;

// Prepares the key entry: the number of questions and the chosen test of the list, copied to
// the screen's labels; the list and the creation screen are unloaded.
void Carga_Ingreso_Manual();

class FrmIngManual : public QWidget {
    Q_OBJECT
public:
    explicit FrmIngManual(QWidget* padre = nullptr);

    Grilla SprAlterPreg{0, 2};
    QComboBox* CmbNFormas;
    QComboBox* CmbNunPreg;
    QPushButton* XPButAceptar;
    QLabel* Etiqueta(const QString& nombre) const;

    void Form_Load();
    void XPButAceptar_Click();

private:
    void Carga_Alternativas_Combo();
    void Graba_Pauta(int16_t forma);
};
