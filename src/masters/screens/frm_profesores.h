// FrmProfesores, "Mantenedor de Profesores": the teachers a test names, by hand or loaded from
// a spreadsheet. A teacher's `rut` is a running number the screen gives, not a national number.
#pragma once

#include <QWidget>

#include "platform/grilla.h"

class QLineEdit;

class FrmProfesores : public QWidget {
    Q_OBJECT
  public:
    explicit FrmProfesores(QWidget* padre = nullptr);

    void XPButAceptar_Click();
    void XPButton1_Click();  // delete
    void CmdCarga_Click();
    void SprProfesores_Click(int fila);
    void Carga_Masiva_Por_Archivo(const QString& ruta);

    QLineEdit* TxtNombre;
    QLineEdit* TxtRut;
    Grilla SprProfesores{0, 2};

  private:
    void Carga_Profesores();
    // COUNT(*) + 1, moved on while that number is taken.
    QString Numero_Nuevo() const;
};
