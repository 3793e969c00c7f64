// Frm_Logros, "Mantenedor de Niveles de Logro": the ranges of achievement of the axis reports
// (D, ND, PD) and of the four SEP levels (NB, NMB, NMA, NA), in NivelesCalificacion.
#pragma once

#include <QWidget>

class QLineEdit;

class Frm_Logros : public QWidget {
    Q_OBJECT
  public:
    explicit Frm_Logros(QWidget* padre = nullptr);

    void XPButAceptar_Click();
    // Puts each code's row in its two boxes; `hay` tells whether the row D exists.
    void Carga_Niveles_Logros(bool& hay);
    // The ten checks of the three axis ranges, in order; the first that fails is told.
    bool Fnc_Validar_Rangos();

    // A box by its name, such as "Txt_PD_Fin".
    QLineEdit* Caja_Logro(const QString& nombre) const;

  private:
    void Form_Load();
    double Valor(const QString& nombre) const;
};
