// "Matriz de respuestas correctas": form by form, the right answer of each question, which
// thematic axis and which skill it measures, and the questions taken out of the key ("X").
#pragma once

#include <QWidget>

#include "platform/grilla.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableView;

class FrmMatrizRespCorrec : public QWidget {
    Q_OBJECT
  public:
    explicit FrmMatrizRespCorrec(QWidget* padre = nullptr);

    Grilla vSMatzRespCorrec{0, 2};
    Grilla vSEjeTemario{0, 2};
    Grilla vSPregObjet{0, 2};
    QComboBox* CboFormas;
    QComboBox* CmbPregNum;
    QComboBox* CmbPregObjetivo;
    QComboBox* CmbEjetema;
    QComboBox* CboDescripcion;
    QComboBox* CmbAsigtura;
    QLabel* LblNombrePrueba;
    QLabel* Label3;
    QLineEdit* TxtEje1;
    QLineEdit* Txt_EjeActual;
    bool Cambio_Eje = false;
    bool Cambio_Objetivo = false;

    void Form_Load();
    void CboFormas_Click();
    void Carga_Respuesta_Pauta(int forma);
    void Carga_Detalles_Grillas(int forma);
    // One question at a time: the axis or the skill chosen in the lists.
    void XPButton3_Click();
    void XPButton1_Click();
    // Several rows at once: the chosen axis or skill into every selected row.
    void vSEjeTemario_Seleccion(const QList<int>& filas);
    void vSPregObjet_Seleccion(const QList<int>& filas);
    void CmbAsigtura_Click();
    void XPButActPond_Click();

  private:
    void Construye();
    QTableView* Vista(Grilla& g, const QString& nombre, int editable);
    void Vacia_Grillas();
    bool Valida(const Grilla& g, const QString& titulo, const QString& texto);
    void Graba_Ejes_Objetivos(int forma);
    void Graba_Alternativas(int16_t id, int forma);
};
