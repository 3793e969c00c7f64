// The three test creation screens share this implementation; each differs in a few fields:
// the general test, the PSU trial (its subjects are the defined PSU tests, one form) and the
// SIMCE trial (fixed subjects by level, one form). Also finishes the copy of a test.
#pragma once

#include <QWidget>

class QComboBox;
class QGroupBox;
class QLineEdit;
class QPushButton;
class QRadioButton;

enum class TipoGenerador { General, PSU, SIMCE };

class GeneradorPrueba : public QWidget {
    Q_OBJECT
public:
    GeneradorPrueba(TipoGenerador tipo, QWidget* padre = nullptr);

    QLineEdit* TxtNum;
    QLineEdit* TxtNombre;
    QLineEdit* TxtTipPru;  // TxtTipPruPSU on the PSU screen
    QComboBox* CmbProfe;
    QComboBox* CmbAsig;
    QComboBox* CmbCurso;
    QLineEdit* txtFecha;
    QComboBox* CmbPreSelMul;  // CboNumeroPreguntas on the PSU screen
    QLineEdit* TxtNumeroPreguntas;
    QComboBox* CmbNunAlterxpreg;
    QComboBox* CmbNumForma;
    QComboBox* CmbPuntBase;
    QComboBox* CmbNivEva;
    QComboBox* CmbNiveles;
    QGroupBox* FraForingmatriz;
    QRadioButton* OptIngpautpantalla;
    QRadioButton* OptIngrPautOptica;
    QPushButton* XPButAceptar;
    QPushButton* XPButCancelar;

    void Form_Load();
    void XPButAceptar_Click();
    // The PSU subject carries its number of questions; the SIMCE level refills the subjects.
    void CmbAsig_Click();
    void CmbNiveles_Click();

private:
    void Construye();
    bool Tablas_Con_Datos();
    void Llena_Listas();
    void Carga_Copia();
    bool Falta_Dato();
    void Graba_Fila();
    void Tras_Grabar_Nueva();
    void Tras_Grabar_Copia();

    TipoGenerador tipo_;
};
