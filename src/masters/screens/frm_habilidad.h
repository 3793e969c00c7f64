// FrmHabilidad, "Mantenedor de Habilidades.": the skills the question matrix offers, each a
// short concept with its definition.
#pragma once

#include <QWidget>

#include "platform/grilla.h"

class QLineEdit;

class FrmHabilidad : public QWidget {
    Q_OBJECT
  public:
    explicit FrmHabilidad(QWidget* padre = nullptr);

    void XPButAceptar_Click();
    void XPButton1_Click();  // delete
    void CmdCarga_Click();
    void SprObjetivos_Click(int fila);
    void Carga_Objetivos();
    void Carga_Masiva_Por_Archivo(const QString& ruta);

    QLineEdit* TxtConcepto;
    QLineEdit* TxtHabilidad;
    QLineEdit* TxtCodigo;  // the key; 0 for a new skill
    Grilla SprObjetivos{0, 3};

  private:
    void Limpia_Campos();
};
