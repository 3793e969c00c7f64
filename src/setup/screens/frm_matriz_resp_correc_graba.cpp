// The question matrix: assigning axes and skills, and saving a form.
#include <QComboBox>

#include "app/estado.h"
#include "platform/base_datos.h"
#include "platform/dialogos.h"
#include "platform/numeros.h"
#include "platform/screens/lista_clave.h"
#include "setup/screens/frm_matriz_resp_correc.h"
#include "store/contadores.h"

namespace {

BaseDatos& Base() {
    return *estado().BaseDatos;
}
const QString kTituloMatriz = QStringLiteral("Matriz Respuesta Correcta");

// Writes one value into the rows of the chosen questions.
void Asigna(Grilla& g, const QList<int>& filas, const QString& valor) {
    for (int f : filas) g.FijaCelda(f, 2, valor);
}

}  // namespace

void FrmMatrizRespCorrec::XPButton3_Click() {
    if (CmbPregNum->currentIndex() < 0) {
        dialogos().MsgBox(QStringLiteral("Debe seleccionar numero de pregunta...."), vbOKOnly,
                          kTituloMatriz);
        return;
    }
    Asigna(vSEjeTemario, {CmbPregNum->currentIndex() + 1}, CmbEjetema->currentText());
    Cambio_Eje = true;
}

void FrmMatrizRespCorrec::XPButton1_Click() {
    if (CmbPregObjetivo->currentIndex() < 0) {
        dialogos().MsgBox(QStringLiteral("Debe seleccionar numero de pregunta...."), vbOKOnly,
                          kTituloMatriz);
        return;
    }
    Asigna(vSPregObjet, {CmbPregObjetivo->currentIndex() + 1},
           Texto_Item(Item_Lista(*CboDescripcion)));
    Cambio_Objetivo = true;
}

void FrmMatrizRespCorrec::vSEjeTemario_Seleccion(const QList<int>& filas) {
    if (CmbEjetema->currentText().isEmpty()) {
        dialogos().MsgBox(QStringLiteral("Debe seleccionar un eje tematico...."), vbOKOnly,
                          kTituloMatriz);
        return;
    }
    Asigna(vSEjeTemario, filas, CmbEjetema->currentText());
    Cambio_Eje = true;
}

void FrmMatrizRespCorrec::vSPregObjet_Seleccion(const QList<int>& filas) {
    if (CboDescripcion->currentText().isEmpty()) {
        dialogos().MsgBox(QStringLiteral("Debe seleccionar un descripcion...."), vbOKOnly,
                          kTituloMatriz);
        return;
    }
    Asigna(vSPregObjet, filas, Texto_Item(Item_Lista(*CboDescripcion)));
    Cambio_Objetivo = true;
}

bool FrmMatrizRespCorrec::Valida(const Grilla& g, const QString& titulo, const QString& texto) {
    for (int f = 1; f <= g.MaxRows(); ++f)
        if (g.Celda(f, 2).trimmed().isEmpty()) {
            dialogos().MsgBox(texto, vbOKOnly, titulo);
            return false;
        }
    return true;
}

void FrmMatrizRespCorrec::XPButActPond_Click() {
    Estado& e = estado();
    if (e.Id_Prueba_Actual == 0) return;
    if (Cambio_Eje &&
        !Valida(vSEjeTemario, QStringLiteral("Ejes Tematicos"),
                QStringLiteral("La grilla de Ejes Tamaticos esta incompleta, verifique")))
        return;
    if (Cambio_Objetivo &&
        !Valida(vSPregObjet, QStringLiteral("Objetivos"),
                QStringLiteral("La grilla de Objetivos esta incompleta, verifique")))
        return;
    const int forma = CboFormas->currentText().toInt();
    e.Numero_Formas_Actual = forma;
    Transaccion t(Base());
    Graba_Ejes_Objetivos(forma);
    Graba_Alternativas(e.Id_Prueba_Actual, forma);
    t.Confirma();
    for (Grilla* g : {&vSMatzRespCorrec, &vSEjeTemario, &vSPregObjet}) g->SetMaxRows(0);
    dialogos().MsgBox(QStringLiteral("Los cambios han sido grabado"), vbOKOnly,
                      QStringLiteral("Ejes Tematicos"));
}

void FrmMatrizRespCorrec::Graba_Ejes_Objetivos(int forma) {
    const Estado& e = estado();
    Base().Execute(
        QStringLiteral(" delete from NEW_EJE_TEMATICO  where idprueba = ? and forma = ?"),
        {e.Id_Prueba_Actual, forma});
    int32_t correlativo =
        Maximo_Mas_Uno(QStringLiteral("NEW_EJE_TEMATICO"), QStringLiteral("correlativo"));
    for (int f = 1; f <= vSEjeTemario.MaxRows(); ++f) {
        const bool eliminada = vSMatzRespCorrec.Celda(f, 2) == QLatin1String("X");
        const QString eje =
            eliminada ? QStringLiteral("ELIMINADA") : vSEjeTemario.Celda(f, 2).trimmed();
        const QString habilidad =
            eliminada ? QStringLiteral("ELIMINADA") : vSPregObjet.Celda(f, 2).trimmed();
        Base().Execute(QStringLiteral(" insert into NEW_EJE_TEMATICO values (?, ?, ?, ?, ?, ?, ?)"),
                       {correlativo++, e.Id_Prueba_Actual, Val(vSEjeTemario.Celda(f, 1)), eje,
                        habilidad, forma, e.Tipo_Prueba_Actual.trimmed()});
    }
}

void FrmMatrizRespCorrec::Graba_Alternativas(int16_t id, int forma) {
    Base().Execute(
        QStringLiteral("delete from Resp_preguntas_pautas where idprueba = ? and forma = ?"),
        {id, forma});
    int codigo = 0;  // an "O" keeps the code of the row before it
    for (int f = 1; f <= vSMatzRespCorrec.MaxRows(); ++f) {
        const QString letra = vSMatzRespCorrec.Celda(f, 2);
        if (letra.size() == 1 && QStringLiteral("ABCDE").contains(letra))
            codigo = letra[0].unicode() - 'A' + 1;
        if (letra == QLatin1String("X")) codigo = 9;
        Base().Execute(QStringLiteral(" insert into Resp_preguntas_pautas values (?, ?, ?, ?)"),
                       {id, Val(vSMatzRespCorrec.Celda(f, 1)), forma, codigo});
    }
}
