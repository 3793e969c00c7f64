// Amending a sheet's rut or form.
#include "grading/screens/frm_modf_rut.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "app/estado.h"
#include "grading/correccion_alumnos.h"
#include "platform/base_datos.h"
#include "platform/dialogos.h"
#include "platform/error_ejecucion.h"
#include "platform/numeros.h"
#include "platform/screens/controles.h"
#include "store/rut.h"

namespace {

BaseDatos& Base() {
    return *estado().BaseDatos;
}
int16_t Id() {
    return estado().Id_Prueba_Actual;
}

// A stored number as the statements take it: a decimal comma becomes a point.
QVariant Numero(const QVariant& v) {
    return v.isNull() ? v : QVariant(Val(v.toString().replace(',', '.')));
}

}  // namespace

FrmModfRut::FrmModfRut(Grilla* resumen, QWidget* padre) : QDialog(padre), resumen_(resumen) {
    setWindowTitle(QStringLiteral("Modificador de Rut / Forma"));
    LblRutaModif = new QLabel(this);
    TxtRutModificado = new QLineEdit(this);
    XPButModifica = new QPushButton(QStringLiteral("Modificar Rut"), this);
    LblForma = new QLabel(this);
    CmbForma = new QComboBox(this);
    XPButMoForma = new QPushButton(QStringLiteral("Modificar Forma"), this);
    auto* incorrecta = new QLabel(QStringLiteral("Forma Incorrecta"), this);
    incorrecta->setObjectName(QStringLiteral("LblForma99Incorecta"));
    XPButCancelar = new QPushButton(QStringLiteral("Cancelar"), this);
    TxtRutModificado->setPlaceholderText(QStringLiteral("(Ejemplo --- 99999999-9)"));
    auto* capa = new QFormLayout(this);
    capa->addRow(QStringLiteral("Rut leído:"), LblRutaModif);
    capa->addRow(QStringLiteral("Rut correcto:"), TxtRutModificado);
    capa->addRow(XPButModifica);
    capa->addRow(incorrecta, LblForma);
    capa->addRow(QStringLiteral("Forma correcta:"), CmbForma);
    capa->addRow(XPButMoForma);
    capa->addRow(XPButCancelar);
    connect(XPButModifica, &QPushButton::clicked, this,
            [this] { Ejecutar_Comando([this] { XPButModifica_Click(); }); });
    connect(XPButMoForma, &QPushButton::clicked, this,
            [this] { Ejecutar_Comando([this] { XPButMoForma_Click(); }); });
    connect(XPButCancelar, &QPushButton::clicked, this, &QDialog::reject);
    Filtra_Teclas(TxtRutModificado, [](int c) { return Filtra_Tecla_Rut(c); });
    Form_Load();
}

void FrmModfRut::Form_Load() {
    const Estado& e = estado();
    LblRutaModif->setText(e.Rut_Actual);
    if (resumen_ && e.Fila_Enmienda > 0) LblForma->setText(resumen_->Celda(e.Fila_Enmienda, 6));
    for (QWidget* w :
         std::initializer_list<QWidget*>{TxtRutModificado, XPButModifica, CmbForma, XPButMoForma})
        w->setEnabled(false);
    const bool rut = e.Forma_Mala || e.Rut_Malo;
    TxtRutModificado->setEnabled(rut);
    XPButModifica->setEnabled(rut);
    if (!rut) {
        CmbForma->setEnabled(true);
        XPButMoForma->setEnabled(true);
        Carga_Num_Forma();
    }
}

void FrmModfRut::Carga_Num_Forma() {
    CmbForma->clear();
    const int formas = std::clamp<int>(estado().Numero_Formas_Actual, 1, 4);
    for (int f = 1; f <= formas; ++f) CmbForma->addItem(QString::number(f));
    CmbForma->setCurrentIndex(-1);
}

void FrmModfRut::XPButModifica_Click() {
    const QString nuevo = Rut_Mayuscula(TxtRutModificado->text());
    const QString viejo = LblRutaModif->text();
    if (!Fnc_Valida_Rut(nuevo)) {
        dialogos().MsgBox(QStringLiteral("El rut ingresado no es valida , verifique"), vbCritical,
                          QStringLiteral("Validación Rut"));
        return;
    }
    Recordset alumno = Base().OpenRecordset(
        QStringLiteral("SELECT PRIMERAPELLIDO FROM ALUMNOS  WHERE RUT = ?"), {nuevo});
    if (resumen_ && estado().Fila_Enmienda > 0) {
        resumen_->FijaCelda(estado().Fila_Enmienda, 1, alumno[0].toString());
        resumen_->FijaCelda(estado().Fila_Enmienda, 7, nuevo);
        resumen_->FijaCelda(estado().Fila_Enmienda, 8, QString());
        resumen_->SetBackColor(estado().Fila_Enmienda, 1, ColorBlanco);
    }
    Recordset antes = Base().OpenRecordset(
        QStringLiteral(" select * from ResultadoAlumnos_rj where rut = ? and idprueba = ?"),
        {viejo, Id()});
    if (antes.Eof()) throw ErrorEjecucion(QStringLiteral("No hay registro actual."));
    // The old row's values under the new rut; the form column takes the closing 0.
    QVariantList fila{Id(), nuevo};
    for (int i = 2; i <= 9; ++i) fila << Numero(antes[i]);
    fila << 0;
    Base().Execute(
        QStringLiteral(" insert into ResultadoAlumnos_rj values (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
        fila);
    Base().Execute(
        QStringLiteral(" delete from ResultadoAlumnos_rj  where rut = ? and idprueba = ?"),
        {viejo, Id()});
    Base().Execute(
        QStringLiteral(
            " update respuesta_alumnos_por_rut set  Rut_Alumno =  ? where rut_alumno =  ? "
            "and forma = ? and idprueba = ?"),
        {nuevo, viejo, Numero(LblForma->text()), Id()});
}

void FrmModfRut::XPButMoForma_Click() {
    const QString nueva = CmbForma->currentText();
    if (nueva.isEmpty()) {
        dialogos().MsgBox(QStringLiteral("Debe seleccionar una forma"), vbQuestion,
                          QStringLiteral("Modificación Forma"));
        return;
    }
    const QString rut = LblRutaModif->text();
    const QVariant vieja = Numero(LblForma->text());
    Recordset antes = Base().OpenRecordset(
        QStringLiteral(
            " select * from ResultadoAlumnos_rj where forma = ? and  rut  = ? and idprueba = ?"),
        {vieja, rut, Id()});
    if (!antes.Eof()) {
        Base().Execute(
            QStringLiteral(
                " delete from ResultadoAlumnos_rj  where Forma = ? and idprueba = ? and rut = ?"),
            {vieja, Id(), rut});
        QVariantList fila;
        for (int i = 0; i <= 9; ++i) fila << (i == 1 ? antes[i] : Numero(antes[i]));
        fila << nueva;
        Base().Execute(
            QStringLiteral(
                " insert into ResultadoAlumnos_rj values (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
            fila);
    }
    Base().Execute(QStringLiteral(" update respuesta_alumnos_por_rut set  forma =  ? where "
                                  "rut_alumno =  ? and idprueba = ?"),
                   {nueva, rut, Id()});
    Recorregir_Prueba_Nueva_Forma();
}

void FrmModfRut::Recorregir_Prueba_Nueva_Forma() {
    const QString forma = CmbForma->currentText();
    const QString rut = estado().Rut_Actual;
    Recordset pauta = Base().OpenRecordset(
        QStringLiteral(" select pregunta, alternativa  from Resp_preguntas_pautas where idprueba = "
                       "? and forma = ? "
                       "order by pregunta"),
        {Id(), forma});
    Llena_Tabla(SprPauta, pauta);
    Recordset resp = Base().OpenRecordset(
        QStringLiteral(" select pregunta, alternativa  from respuesta_alumnos_por_rut where "
                       "idprueba = ? and forma = ? "
                       "and rut_alumno = ? order by pregunta"),
        {Id(), forma, rut});
    Llena_Tabla(SprRespuestas, resp);
    int buenas = 0, malas = 0, omitidas = 0, nulas = 0;
    for (int j = 1; j <= SprPauta.MaxRows(); ++j) {
        const double a = Val(SprRespuestas.Celda(j, 2));
        if (a == CInt(Val(SprPauta.Celda(j, 2))))
            ++buenas;
        else if (a == 6)
            ++omitidas;
        else if (a == 7)
            ++nulas;
        else
            ++malas;
    }
    Base().Execute(
        QStringLiteral(" delete from ResultadoAlumnos_rj  where rut = ? and idprueba = ?"),
        {rut, Id()});
    Grabar_Resultados_Alumnos(rut, buenas, malas, omitidas, nulas, SprPauta.MaxRows(), forma);
}

void FrmModfRut::Grabar_Resultados_Alumnos(const QString& rut, int buenas, int malas, int omitidas,
                                           int nulas, int total, const QString& forma) {
    if (total == 0) throw ErrorEjecucion(QStringLiteral("División por cero"));
    const double y = buenas * 7.0 / total;
    const double nota = y < 1 ? 1 : y;
    Base().Execute(
        QStringLiteral("insert into ResultadoAlumnos_rj values (?, ?, ?, ?, ?, ?, 0, ?, 0, ?, ?)"),
        {Id(), rut, buenas, malas, omitidas, nulas, nota, CLng(buenas * 100.0 / total), forma});
    const int f = estado().Fila_Enmienda;
    if (!resumen_ || f <= 0) return;
    resumen_->FijaCelda(f, 2, CStr(buenas));
    resumen_->FijaCelda(f, 3, CStr(malas + nulas));
    resumen_->FijaCelda(f, 4, CStr(omitidas));
    resumen_->FijaCelda(f, 5, CStr(Round(nota, 2)));
    resumen_->FijaCelda(f, 6, forma);
    resumen_->SetBackColor(f, 6, ColorBlanco);
}
