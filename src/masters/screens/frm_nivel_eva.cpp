// FrmNivelEva, "Nivel de Evaluacion".
#include "masters/screens/frm_nivel_eva.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

#include "app/estado.h"
#include "platform/base_datos.h"
#include "platform/dialogos.h"
#include "platform/numeros.h"
#include "platform/screens/controles.h"
#include "store/nota_minima.h"

namespace {

QComboBox* Lista(QWidget* padre, const QString& nombre) {
    auto* lista = new QComboBox(padre);
    lista->setObjectName(nombre);
    return lista;
}

// A box that starts at 0 and turns back to 0 when left empty.
QLineEdit* Caja_Cero(QWidget* padre, const QString& nombre) {
    QLineEdit* caja = Caja(padre, nombre);
    caja->setText(QStringLiteral("0"));
    Al_Salir(caja, [caja] {
        if (caja->text().isEmpty()) caja->setText(QStringLiteral("0"));
    });
    return caja;
}

}  // namespace

FrmNivelEva::FrmNivelEva(QWidget* padre) : QWidget(padre) {
    setObjectName(QStringLiteral("FrmNivelEva"));
    setWindowTitle(QStringLiteral("Nivel de Evaluacion"));
    Cbo_Nota_Base = Lista(this, QStringLiteral("Cbo_Nota_Base"));
    Cbo_Nota_Base->setEditable(true);
    for (int entero = 1; entero <= 6; ++entero)
        for (int decima = 0; decima <= 9; ++decima)
            Cbo_Nota_Base->addItem(QString::number(entero) + u'.' + QString::number(decima));
    Cbo_Puntaje_Maximo = Lista(this, QStringLiteral("Cbo_Puntaje_Maximo"));
    Cbo_Puntaje_Minimo = Lista(this, QStringLiteral("Cbo_Puntaje_Minimo"));
    for (int i = 1; i <= 100; ++i) {
        Cbo_Puntaje_Maximo->addItem(QString::number(i));
        Cbo_Puntaje_Minimo->addItem(QString::number(i));
    }
    auto* capa = new QGridLayout(this);
    auto* notas = new QFormLayout;
    notas->addRow(QStringLiteral("Ingrese Nota Base"), Cbo_Nota_Base);
    notas->addRow(QStringLiteral("Puntaje Maximo Prueba"), Cbo_Puntaje_Maximo);
    notas->addRow(QStringLiteral("Nivel Minimo Nota 4.0"), Cbo_Puntaje_Minimo);
    capa->addLayout(notas, 0, 0);
    capa->addWidget(Arma_Logros(), 1, 0);
    auto* botones =
        Columna_Botones(this, {{"XPButAceptar", "Aceptar", [this] { XPButAceptar_Click(); }},
                               {"XPButCancelar", "Cancelar", [this] { close(); }}});
    capa->addLayout(botones, 0, 1, 2, 1);
    resize(460, 330);
    Ejecutar_Comando([this] { Form_Load(); });
}

QWidget* FrmNivelEva::Arma_Logros() {
    auto* marco = new QGroupBox(this);
    auto* capa = new QGridLayout(marco);
    TxtLDesde = Caja_Cero(marco, QStringLiteral("TxtLDesde"));
    TxtLHasta = Caja_Cero(marco, QStringLiteral("TxtLHasta"));
    TxtNLDesde = Caja_Cero(marco, QStringLiteral("TxtNLDesde"));
    TxtNLHasta = Caja_Cero(marco, QStringLiteral("TxtNLHasta"));
    TxtPLDesde = Caja_Cero(marco, QStringLiteral("TxtPLDesde"));
    TxtPLHasta = Caja_Cero(marco, QStringLiteral("TxtPLHasta"));
    capa->addWidget(new QLabel(QStringLiteral("Desde"), marco), 0, 1);
    capa->addWidget(new QLabel(QStringLiteral("Hasta"), marco), 0, 2);
    const QStringList nombres = {QStringLiteral("Logrado"), QStringLiteral("NO Logrado"),
                                 QStringLiteral("Parcialmente Logrado")};
    const QList<std::pair<QLineEdit*, QLineEdit*>> cajas = {
        {TxtLDesde, TxtLHasta}, {TxtNLDesde, TxtNLHasta}, {TxtPLDesde, TxtPLHasta}};
    for (int i = 0; i < cajas.size(); ++i) {
        capa->addWidget(new QLabel(nombres[i], marco), i + 1, 0);
        capa->addWidget(cajas[i].first, i + 1, 1);
        capa->addWidget(cajas[i].second, i + 1, 2);
    }
    return marco;
}

void FrmNivelEva::Form_Load() {
    Cbo_Nota_Base->setCurrentText(QString::number(Fnc_Lee_Nota_Minima()));
}

void FrmNivelEva::XPButAceptar_Click() {
    const QString texto = Cbo_Nota_Base->currentText();
    const QString titulo = QStringLiteral("Nota base Pruebas");
    if (Val(texto) == 0) {
        dialogos().MsgBox(QStringLiteral("La nota Base es CERO, verifique..."), vbExclamation,
                          titulo);
        return;
    }
    // A blank text has the value 0 and stops above; the check stays as the procedure has it.
    if (texto.trimmed().isEmpty()) {
        dialogos().MsgBox(QStringLiteral("La nota Base esta en blanco es CERO, verifique..."),
                          vbExclamation, titulo);
        return;
    }
    const double nota = Numero_Digitado(texto);
    BaseDatos& base = *estado().BaseDatos;
    if (!base.OpenRecordset(
                 QStringLiteral("select desde from NivelesCalificacion where concepto = 'NM' "))
             .Eof())
        base.Execute(
            QStringLiteral(" update NivelesCalificacion set desde = ? where concepto = 'NM' "),
            {nota});
    else
        base.Execute(QStringLiteral(" insert into NivelesCalificacion values('NM', ?, 0)"), {nota});
    dialogos().MsgBox(QStringLiteral("Los datos han sido grabado"), vbInformation,
                      QStringLiteral("Niveles Calificación"));
    close();
}
