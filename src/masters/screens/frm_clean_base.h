// "Inicializa Base de Datos": empties the store of every test and result at the end of a school
// period, keeps the master lists, and compacts the file.
#pragma once

#include <QString>
#include <QWidget>

class FrmCleanBase : public QWidget {
    Q_OBJECT
  public:
    explicit FrmCleanBase(QWidget* padre = nullptr);

    // The reset.
    void XPButAceptar_Click();
    // Writes a compact copy of the closed store `origen` to `destino`; sets Compactada when done.
    void Compactar_Base(const QString& origen, const QString& destino);

    bool Compactada = false;
};
