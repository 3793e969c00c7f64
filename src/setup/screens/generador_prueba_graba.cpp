// Saving a new test or the copy of one, and handing over to the key entry.
#include <QComboBox>
#include <QDate>
#include <QLineEdit>
#include <QRadioButton>

#include "app/estado.h"
#include "grading/screens/frm_correc_pru.h"
#include "platform/base_datos.h"
#include "platform/dialogos.h"
#include "platform/numeros.h"
#include "platform/screens/lista_clave.h"
#include "platform/screens/navegacion.h"
#include "setup/screens/frm_ing_manual.h"
#include "setup/screens/generador_prueba.h"
#include "store/copias_prueba.h"

namespace {

BaseDatos& Base() {
    return *estado().BaseDatos;
}

void Refresca_Lista() {
    if (auto* lista = qobject_cast<frmCorrecPru*>(Pantalla_Abierta(QStringLiteral("frmCorrecPru"))))
        lista->LLena_Grilla_Principal();
}

}  // namespace

bool GeneradorPrueba::Falta_Dato() {
    std::vector<QWidget*> orden;
    switch (tipo_) {
        case TipoGenerador::General:
            orden = {CmbProfe,     CmbAsig,     CmbCurso,        TxtNombre,
                     CmbPreSelMul, CmbNumForma, CmbNunAlterxpreg};
            break;
        case TipoGenerador::PSU:
            orden = {CmbProfe, CmbAsig, CmbCurso, TxtNombre, CmbNunAlterxpreg};
            break;
        case TipoGenerador::SIMCE:
            // The subject is looked at last, and only for a SIMCE type, which it always is here.
            orden = {CmbProfe, CmbCurso, TxtNombre, CmbNunAlterxpreg, CmbPreSelMul};
            if (TxtTipPru->text() == QLatin1String("SIMCE")) orden.push_back(CmbAsig);
            break;
    }
    for (QWidget* campo : orden) {
        const auto* caja = qobject_cast<QLineEdit*>(campo);
        const QString texto = caja ? caja->text() : static_cast<QComboBox*>(campo)->currentText();
        if (texto.isEmpty()) {
            dialogos().MsgBox(QStringLiteral("Complete los item en blanco"), vbInformation,
                              windowTitle());
            campo->setFocus();
            return true;
        }
    }
    return false;
}

void GeneradorPrueba::Graba_Fila() {
    const bool general = tipo_ == TipoGenerador::General;
    Recordset tabla = Base().OpenTable(QStringLiteral("Prueba_rj"));
    tabla.AddNew();
    tabla.Fija(QStringLiteral("IdPrueba"), estado().Id_Prueba_Actual);
    tabla.Fija(QStringLiteral("NombrePrueba"), TxtNombre->text().trimmed());
    tabla.Fija(QStringLiteral("TipoPrueba"), TxtTipPru->text());
    tabla.Fija(QStringLiteral("NombreProfesor"), CmbProfe->currentText());
    // A PSU subject is the defined test's name, without its number of questions.
    tabla.Fija(QStringLiteral("Asignatura"),
               Item_Lista(*CmbAsig).section(QLatin1Char('@'), 0, 0).trimmed());
    tabla.Fija(QStringLiteral("curso"), CmbCurso->currentText());
    tabla.Fija(QStringLiteral("Numero_Forma"), general ? Val(CmbNumForma->currentText()) : 1);
    tabla.Fija(QStringLiteral("Fecha"), txtFecha->text());
    tabla.Fija(QStringLiteral("Pregunta_Seleccion"), Val(CmbPreSelMul->currentText()));
    // The general screen never stores the base score; the SIMCE screen not on a copy either.
    const bool sin_base = general || (tipo_ == TipoGenerador::SIMCE && estado().Copia_Activa);
    tabla.Fija(QStringLiteral("puntaje_base"), sin_base ? 0.0 : Val(CmbPuntBase->currentText()));
    tabla.Fija(QStringLiteral("Numero_Alternativas"), Val(CmbNunAlterxpreg->currentText()));
    if (!general) tabla.Fija(QStringLiteral("formas"), 1);
    tabla.Fija(QStringLiteral("ingreso_pauta"),
               estado().Copia_Activa ? QStringLiteral("S") : QStringLiteral("N"));
    tabla.Update();
}

void GeneradorPrueba::XPButAceptar_Click() {
    txtFecha->setText(Fecha_Texto(QDate::currentDate()));
    if (Falta_Dato()) return;
    estado().Id_Prueba_Actual = CInt(Val(TxtNum->text()));
    Graba_Fila();
    if (estado().Copia_Activa)
        Tras_Grabar_Copia();
    else
        Tras_Grabar_Nueva();
}

void GeneradorPrueba::Tras_Grabar_Nueva() {
    Estado& e = estado();
    e.Numero_Formas_Actual =
        tipo_ == TipoGenerador::General ? CInt(Val(CmbNumForma->currentText())) : 1;
    e.Preguntas_Actual = CInt(Val(CmbPreSelMul->currentText()));
    // Both take the alternatives; the maximum points come when the test is chosen on the list.
    e.Ptje_Max_Actual = e.Alternativas_Actual = CInt(Val(CmbNunAlterxpreg->currentText()));
    e.Lee_Pauta = OptIngrPautOptica->isChecked();
    if (tipo_ == TipoGenerador::SIMCE)
        dialogos().MsgBox(Lineas({QStringLiteral("Los Datos inicial han sido grabados con éxito,"),
                                  QStringLiteral("desea ingresar la pauta de la prueba")}),
                          vbOKOnly, QStringLiteral("Confirmación"));
    if (e.Lee_Pauta) {
        Refresca_Lista();
        close();
        e.Seteo_Hoja = false;
        Muestra_Pantalla(QStringLiteral("FrmImagen"));
    } else {
        Carga_Ingreso_Manual();
        close();
        Muestra_Pantalla(QStringLiteral("FrmIngManual"));
    }
}

void GeneradorPrueba::Tras_Grabar_Copia() {
    Estado& e = estado();
    for (int16_t forma = 1; forma <= e.Numero_Formas_Actual; ++forma) {
        Copia_Pauta_Prueba(forma);
        Copia_Ejes_Prueba(forma);
    }
    e.Copia_Activa = false;
    dialogos().MsgBox(QStringLiteral("Los datos iniciales han sido grabados con éxito.."), vbOKOnly,
                      QStringLiteral("Confirmación"));
    Refresca_Lista();
    close();
}
