// The PSU and SIMCE test definitions.
#include "masters/screens/frm_mant_psu.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>

#include "app/estado.h"
#include "platform/screens/controles.h"
#include "platform/base_datos.h"
#include "platform/dialogos.h"
#include "platform/numeros.h"
#include "platform/screens/navegacion.h"
#include "store/contadores.h"

namespace {

const QString kTitulo = QStringLiteral("Mantenedor PSU");
BaseDatos& Base() {
    return *estado().BaseDatos;
}

int Tecla_Digito(int codigo) {
    return (codigo >= '0' && codigo <= '9') || codigo == 8 ? codigo : 0;
}

QComboBox* Numeros(QWidget* padre, const char* nombre, int hasta) {
    auto* c = new QComboBox(padre);
    c->setObjectName(QString::fromUtf8(nombre));
    for (int i = 1; i <= hasta; ++i) c->addItem(QString::number(i));
    c->setCurrentIndex(-1);
    return c;
}

}  // namespace

FrmMantPSU::FrmMantPSU(QWidget* padre) : QWidget(padre) {
    const Estado& e = estado();
    // The menu's flags choose what kind of definition the screen keeps.
    const bool psu = e.Mant_PSU || !e.Mant_SIMCE;
    tipo_ = psu ? QStringLiteral("PSU") : QStringLiteral("SIMCE");
    setObjectName(QStringLiteral("FrmMantPSU"));
    setWindowTitle(QStringLiteral(" Mantenedor de puntajes ") + tipo_);
    TxtNombrePSU = Caja(this, QStringLiteral("TxtNombrePSU"));
    CboNumeroPreguntas = Numeros(this, "CboNumeroPreguntas", 100);
    Chk_SI = new QCheckBox(QStringLiteral("Elimina Buenas por Malas "), this);
    lbl_texto = new QLabel(QStringLiteral("1 por cada "), this);
    CboEliminaMalas = Numeros(this, "CboEliminaMalas", 10);
    TxtPuntajeMin = Caja(this, QStringLiteral("TxtPuntajeMin"));
    TxtPuntajeMax = Caja(this, QStringLiteral("TxtPuntajeMax"));
    TxtIndicePSU = Caja(this, QStringLiteral("TxtIndicePSU"));
    TxtIndicePSU->setVisible(false);
    Filtra_Teclas(TxtPuntajeMin, Tecla_Digito);
    Filtra_Teclas(TxtPuntajeMax, Tecla_Digito);
    const QStringList cabezas = {QStringLiteral("Nombre Prueba ") + tipo_,
                                 "Numero de Preguntas",
                                 "Elimina Buenas por Malas",
                                 "Malas por Buenas",
                                 "Puntaje Mínimo",
                                 "Puntaje Máximo",
                                 "indice"};
    for (int c = 0; c < cabezas.size(); ++c) Spr_PSU.FijaCelda(0, c + 1, cabezas[c]);
    QTableView* vista =
        Vista_Grilla(this, QStringLiteral("Spr_PSU"), Spr_PSU, [this](int f) { Spr_PSU_Click(f); });
    vista->resizeColumnsToContents();
    auto* capa = new QGridLayout(this);
    capa->addWidget(new QLabel(QStringLiteral("Ingrese Nombre de Prueba ") + tipo_, this), 0, 0);
    capa->addWidget(TxtNombrePSU, 0, 1, 1, 3);
    capa->addWidget(new QLabel(QStringLiteral("Numero de Preguntas"), this), 1, 0);
    capa->addWidget(CboNumeroPreguntas, 1, 1);
    capa->addWidget(Chk_SI, 2, 0);
    capa->addWidget(lbl_texto, 2, 1);
    capa->addWidget(CboEliminaMalas, 2, 2);
    capa->addWidget(new QLabel(QStringLiteral("Puntaje Mínimo"), this), 3, 0);
    capa->addWidget(TxtPuntajeMin, 3, 1);
    capa->addWidget(new QLabel(QStringLiteral("Puntaje Máximo"), this), 4, 0);
    capa->addWidget(TxtPuntajeMax, 4, 1);
    capa->addWidget(vista, 5, 0, 1, 5);
    auto* botones =
        Columna_Botones(this, {{"XPButAceptar", "Aceptar", [this] { XPButAceptar_Click(); }},
                               {"XPButton1", "Eliminar", [this] { XPButton1_Click(); }},
                               {"XPButCancelar", "Cancelar", [this] { close(); }}});
    CmdPuntajes_PSU = Boton(this, QStringLiteral("CmdPuntajes_PSU"),
                            QStringLiteral("Crear Puntajes %1 por prueba").arg(tipo_),
                            [] { Muestra_Pantalla(QStringLiteral("frmPuntajesPSU")); });
    botones->insertWidget(2, CmdPuntajes_PSU);
    capa->addLayout(botones, 0, 4, 5, 1);
    connect(Chk_SI, &QCheckBox::toggled, this, [this] { Chk_SI_Click(); });
    Chk_SI_Click();
    resize(860, 520);
    Ejecutar_Comando([this] { Carga_Grilla_PSU(); });
}

void FrmMantPSU::Chk_SI_Click() {
    lbl_texto->setVisible(Chk_SI->isChecked());
    CboEliminaMalas->setVisible(Chk_SI->isChecked());
}

void FrmMantPSU::Carga_Grilla_PSU() {
    Recordset rs = Base().OpenRecordset(
        QStringLiteral(" select *  from Puntajes_PSU_NEW where tipo_prueba = ?"), {tipo_});
    Spr_PSU.SetMaxRows(rs.RecordCount());
    static const char* const kCampos[] = {
        "nombre_psu",  "numero_preguntas", "elimina_buenas", "numero_elimina_malas",
        "puntaje_min", "puntaje_max",      "id_psu"};
    for (int fila = 1; !rs.Eof(); rs.MoveNext(), ++fila)
        for (int c = 0; c < 7; ++c) Spr_PSU.FijaCelda(fila, c + 1, rs[kCampos[c]].toString());
}

bool FrmMantPSU::fcn_Valida_Campos() {
    const bool elimina = Chk_SI->isChecked();
    const std::pair<bool, const char*> pasos[] = {
        {TxtNombrePSU->text().isEmpty(), "El Nombre de la prueba esta en blanco, verifique..."},
        {CboNumeroPreguntas->currentText().isEmpty(),
         "El numero de preguntas esta en blanco, verifique..."},
        {elimina && CboEliminaMalas->currentText().isEmpty(),
         "El numero de eliminacion de malas por buenas esta en blanco, verifique..."},
        {elimina && !CboEliminaMalas->currentText().isEmpty() &&
             Val(CboEliminaMalas->currentText()) == 0,
         "El numero de eliminacion de malas por buenas esta en CERO, verifique..."},
        {TxtPuntajeMin->text().isEmpty(), "El puntaje Mínimo esta en blanco, verifique..."},
        {TxtPuntajeMax->text().isEmpty(), "El puntaje Máximo esta en blanco, verifique..."},
        {Val(TxtPuntajeMin->text()) == Val(TxtPuntajeMax->text()),
         "Los puntajes no pueden ser iguales, verifique..."},
        {Val(TxtPuntajeMin->text()) > Val(TxtPuntajeMax->text()),
         "El puntaje Mínimo no puede ser mayo al puntaje Máximo, verifique..."},
    };
    for (const auto& [falla, texto] : pasos)
        if (falla) {
            dialogos().MsgBox(QString::fromUtf8(texto), vbExclamation, kTitulo);
            return false;
        }
    return true;
}

void FrmMantPSU::XPButAceptar_Click() {
    if (!fcn_Valida_Campos()) return;
    const QVariant clave =
        TxtIndicePSU->text().isEmpty()
            ? QVariant(Maximo_Mas_Uno(QStringLiteral("Puntajes_PSU_NEW"), QStringLiteral("id_psu")))
            : QVariant(Val(TxtIndicePSU->text()));
    const bool elimina = Chk_SI->isChecked();
    const QVariant malas = elimina ? QVariant(Val(CboEliminaMalas->currentText())) : QVariant(0);
    const QString si_no = elimina ? QStringLiteral("SI") : QStringLiteral("NO");
    const QVariant preguntas = Val(CboNumeroPreguntas->currentText());
    const QVariant minimo = Val(TxtPuntajeMin->text()), maximo = Val(TxtPuntajeMax->text());
    if (Base()
            .OpenRecordset(QStringLiteral(" select id_psu from Puntajes_PSU_NEW  where id_psu = ?"),
                           {clave})
            .Eof())
        Base().Execute(
            QStringLiteral(" insert into Puntajes_PSU_NEW  values ( ?, ?, ?, ?, ?, ?, ?, ?)"),
            {clave, TxtNombrePSU->text(), tipo_, preguntas, si_no, malas, minimo, maximo});
    else
        Base().Execute(
            QStringLiteral(
                " Update Puntajes_PSU_NEW  set  nombre_psu = ?, numero_preguntas = ?, "
                "elimina_buenas = ?, "
                "numero_elimina_malas = ?, puntaje_min = ?, puntaje_max = ? where id_psu = ?"),
            {TxtNombrePSU->text(), preguntas, si_no, malas, minimo, maximo, clave});
    dialogos().MsgBox(QStringLiteral("Los datos han sido grabados con éxito"), vbInformation,
                      kTitulo);
    Carga_Grilla_PSU();
    Limpia_Pantalla();
}

void FrmMantPSU::Spr_PSU_Click(int fila) {
    TxtNombrePSU->setText(Spr_PSU.Celda(fila, 1));
    CboNumeroPreguntas->setCurrentIndex(CboNumeroPreguntas->findText(Spr_PSU.Celda(fila, 2)));
    Chk_SI->setChecked(Spr_PSU.Celda(fila, 3) == QLatin1String("SI"));
    CboEliminaMalas->setCurrentIndex(
        Chk_SI->isChecked() ? CboEliminaMalas->findText(Spr_PSU.Celda(fila, 4)) : -1);
    TxtPuntajeMin->setText(Spr_PSU.Celda(fila, 5));
    TxtPuntajeMax->setText(Spr_PSU.Celda(fila, 6));
    TxtIndicePSU->setText(Spr_PSU.Celda(fila, 7));
}

void FrmMantPSU::XPButton1_Click() {
    const QString titulo = QStringLiteral("Eliminacion Prueba PSU");
    if (TxtIndicePSU->text().isEmpty()) {
        dialogos().MsgBox(QStringLiteral("Debe seleccionar una prueba para eliminar"),
                          vbExclamation, titulo);
        return;
    }
    if (dialogos().MsgBox(
            QStringLiteral("Esta seguro de elimnar la prueba ") + TxtNombrePSU->text(),
            vbOKCancel + vbQuestion, titulo) != vbOK)
        return;
    Base().Execute(QStringLiteral(" delete from Puntajes_PSU_NEW  where id_psu = ?"),
                   {Val(TxtIndicePSU->text())});
    Carga_Grilla_PSU();
    Limpia_Pantalla();
}

void FrmMantPSU::Limpia_Pantalla() {
    for (QLineEdit* caja : {TxtNombrePSU, TxtPuntajeMin, TxtPuntajeMax, TxtIndicePSU})
        caja->clear();
    CboNumeroPreguntas->setCurrentIndex(-1);
    CboEliminaMalas->setCurrentIndex(-1);
    Chk_SI->setChecked(false);
}
