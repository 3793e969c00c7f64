// FrmTabEjeTema, "Tabla ejes tematicos": the thematic axes the question matrix offers, each
// with its test type and the subject or level it belongs to.
#pragma once

#include <QWidget>

#include "platform/grilla.h"

class QComboBox;
class QLineEdit;

class FrmTabEjeTema : public QWidget {
    Q_OBJECT
  public:
    explicit FrmTabEjeTema(QWidget* padre = nullptr);

    void XPButAceptar_Click();
    void XPButton1_Click();  // delete
    void CmdCarga_Click();
    // A choice of test type fills the subjects or levels of `CboTipoEnsayo`.
    void CboPrueba_Click();
    void SprEjeTema_Click(int fila);
    void Carga_Ejes();
    void Carga_Masiva_Por_Archivo(const QString& ruta);

    QLineEdit* TxtNombre;
    QLineEdit* TxtID;
    QComboBox* CboPrueba;
    QComboBox* CboTipoEnsayo;
    QComboBox* CboNiveles;
    Grilla SprEjeTema{0, 4};  // eje, TipoPrueba, TipoEnsayo, IdEje

  private:
    QWidget* Arma_Grilla();
};
