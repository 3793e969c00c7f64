// FrmAsignatura, "Mantenedor de Asignaturas": the subjects a test names, by hand or loaded from
// a spreadsheet.
#pragma once

#include <QWidget>

class QLineEdit;
class QListWidget;

class FrmAsignatura : public QWidget {
    Q_OBJECT
  public:
    explicit FrmAsignatura(QWidget* padre = nullptr);

    void XPButAceptar_Click();
    void XPButton1_Click();  // delete
    void CmdCarga_Click();
    // A click puts the name in the box; a double click the whole item, key included.
    void LstAsiganturas_Click(int fila);
    void LstAsiganturas_DblClick(int fila);
    void Carga_Masiva_Por_Archivo(const QString& ruta);

    QLineEdit* TxtNombre;
    QListWidget* LstAsiganturas;

  private:
    void Carga_Asignaturas();
};
