// The SIMCE score range.
#include "masters/screens/frm_mant_simce.h"

#include <QFormLayout>
#include <QLineEdit>

#include "app/estado.h"
#include "platform/base_datos.h"
#include "platform/dialogos.h"
#include "platform/numeros.h"
#include "platform/screens/controles.h"

FrmMantSimce::FrmMantSimce(QWidget* padre) : QWidget(padre) {
    setObjectName(QStringLiteral("FrmMantSimce"));
    setWindowTitle(QStringLiteral("Mantenedor SIMCE"));
    TxtMinimo = Caja(this, QStringLiteral("TxtMinimo"));
    TxtMaximo = Caja(this, QStringLiteral("TxtMaximo"));
    auto* capa = new QFormLayout(this);
    capa->addRow(QStringLiteral("Puntaje mínimo:"), TxtMinimo);
    capa->addRow(QStringLiteral("Puntaje máximo:"), TxtMaximo);
    capa->addRow(
        Columna_Botones(this, {{"XPButAceptar", "Aceptar", [this] { XPButAceptar_Click(); }},
                               {"XPButCancelar", "Cancelar", [this] { close(); }}}));
    for (QLineEdit* caja : {TxtMinimo, TxtMaximo})
        Al_Salir(caja, [this, caja] { Verifica_Vacio(caja); });
    Recordset rs = estado().BaseDatos->OpenRecordset(
        QStringLiteral(" SELECT puntaje_minimo, puntaje_maximo  From Puntaje_SIMCE"));
    TxtMinimo->setText(rs[0].toString());
    TxtMaximo->setText(rs[1].toString());
    resize(360, 160);
}

void FrmMantSimce::Verifica_Vacio(QLineEdit* caja) {
    if (!caja->text().isEmpty()) return;
    dialogos().MsgBox(caja == TxtMinimo
                          ? QStringLiteral("No puede dejar el puntaje de Minimo en blanco")
                          : QStringLiteral("No puede dejar el puntaje de Maximo en blanco"),
                      vbExclamation, QStringLiteral("Mantenedor SIMCE"));
}

void FrmMantSimce::XPButAceptar_Click() {
    const double minimo = Numero_Digitado(TxtMinimo->text());
    const double maximo = Numero_Digitado(TxtMaximo->text());
    const QString titulo = QStringLiteral("Mantenedor SIMCE");
    if (minimo == 0) {
        dialogos().MsgBox(QStringLiteral("Debe ingresar un puntaje minimo para el SIMCE"),
                          vbExclamation, titulo);
        return;
    }
    if (maximo == 0) {
        dialogos().MsgBox(QStringLiteral("Debe ingresar un puntaje maximo para el SIMCE"),
                          vbExclamation, titulo);
        return;
    }
    estado().BaseDatos->Execute(
        QStringLiteral(" Update Puntaje_simce set  puntaje_minimo = ?, puntaje_maximo = ?"),
        {minimo, maximo});
    dialogos().MsgBox(QStringLiteral("Los datos han sido modificados"), vbInformation,
                      QStringLiteral("Mantenedor PSU"));
}
