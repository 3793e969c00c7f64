// Frm_Grises, "Mantenedor de Grisis": the saved gray value of the mark reading, row COLOR of
// indice_general, with a sample of that gray.
#pragma once

#include <QWidget>

class QLineEdit;

class Frm_Grises : public QWidget {
    Q_OBJECT
  public:
    explicit Frm_Grises(QWidget* padre = nullptr);

    void XPButAceptar_Click();
    // Paints the sample when the box isn't empty.
    void XPButton1_Click();
    // The sample: red, green and blue all the value, cut to a colour byte.
    void Pinta_Muestra();

    QLineEdit* TxtNumColor;
    QLineEdit* TxtResult;
};
