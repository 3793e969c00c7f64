// "Formulario Corrector": the screen of the reading run. It shows the sheet in hand with the
// marks found drawn over it, the counts, a progress bar, the operator's log List1 and the
// sheet's letters, and runs the two commands "Escanear ..." and "Corregir Pruebas".
#pragma once

#include <QPixmap>
#include <QWidget>

#include "reading/corrida_lectura.h"

class QLabel;
class QLineEdit;
class QListWidget;
class QProgressBar;
class QPushButton;
class QScrollArea;

class FrmImagen : public QWidget, public ObservadorCorrida {
    Q_OBJECT
  public:
    explicit FrmImagen(QWidget* padre = nullptr);

    void CmdCarga_Lee_Click();
    void CmdCorregir_Pruebas_Click();
    void CmdSalir_Click();
    void CmdLimpiaGrilla_Click();

    CorridaLectura& corrida() { return corrida_; }
    QPushButton* CmdCarga_Lee = nullptr;
    QPushButton* CmdCorregir_Pruebas = nullptr;
    QLabel* lbl_CantidadHojas = nullptr;
    QLabel* lbl_Leidas = nullptr;
    QLineEdit* TxtForma = nullptr;
    QLineEdit* TxtRut = nullptr;
    QLineEdit* Txt_Rut_2 = nullptr;
    QListWidget* List1 = nullptr;
    QProgressBar* Progreso = nullptr;
    QLabel* Picture2 = nullptr;

    // ObservadorCorrida
    void Hoja_En_Mano(const CorridaLectura& corrida, const Imagen& imagen) override;
    void Actualiza(const CorridaLectura& corrida) override;
    void Espera(double segundos) override;
    void Descarga_Lista() override;
    void Cierra_Y_Muestra_Lista() override;

  private:
    void Construye();
    QWidget* Panel_Derecho();
    void Dibuja_Marcas();

    CorridaLectura corrida_{this};
    QPixmap hoja_;       // the sheet in hand, scaled to the view
    double escala_ = 1;  // view pixels an image pixel
    QScrollArea* vista_ = nullptr;
    bool en_corrida_ = false;  // CmdCorregir_Pruebas is running
};
