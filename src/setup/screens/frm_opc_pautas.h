// "Opc. Pautas ": for a test whose key is still missing, asks whether the key is typed on the
// screen or read from a filled sheet.
#pragma once

#include <QWidget>

class QRadioButton;

class FrmOPCPautas : public QWidget {
    Q_OBJECT
public:
    explicit FrmOPCPautas(QWidget* padre = nullptr);

    QRadioButton* OptIngpautpantalla;
    QRadioButton* OptIngrPautOptica;
    void XPButAceptar_Click();
};
