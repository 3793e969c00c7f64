// Typing a form's key.
#include "setup/screens/frm_ing_manual.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include "app/estado.h"
#include "grading/screens/frm_correc_pru.h"
#include "platform/base_datos.h"
#include "platform/dialogos.h"
#include "platform/numeros.h"
#include "platform/screens/celda_lista.h"
#include "platform/screens/controles.h"
#include "platform/screens/grilla_modelo.h"
#include "platform/screens/navegacion.h"

namespace {

BaseDatos& Base() {
    return *estado().BaseDatos;
}

// The labels of the screen and the columns of the list row they take.
const std::pair<const char*, int> kEtiquetas[] = {
    {"LblCorrelativo", 1}, {"LblProfesor", 3}, {"LblCurso", 4},        {"LblTipPru", 5},
    {"LblAsig", 7},        {"LblFormas", 9},   {"LblNAlternativa", 10}};

// What Carga_Ingreso_Manual hands to the screen.
QMap<QString, QString>& Datos_Ingreso() {
    static QMap<QString, QString> datos;
    return datos;
}

}  // namespace

void Carga_Ingreso_Manual() {
    QMap<QString, QString>& datos = Datos_Ingreso();
    datos.clear();
    datos[QStringLiteral("CmbNunPreg")] = CStr(int(estado().Preguntas_Actual));
    if (auto* lista = qobject_cast<frmCorrecPru*>(Pantalla_Abierta(QStringLiteral("frmCorrecPru"))))
        for (const auto& [etiqueta, columna] : kEtiquetas)
            datos[QString::fromUtf8(etiqueta)] =
                lista->SprPrincipal.Celda(lista->Fila_Seleccionada(), columna);
    Descarga_Pantalla(QStringLiteral("frmCorrecPru"));
    Descarga_Pantalla(QStringLiteral("FrmGenePru"));
}

FrmIngManual::FrmIngManual(QWidget* padre) : QWidget(padre) {
    setObjectName(QStringLiteral("FrmIngManual"));
    setWindowTitle(QStringLiteral("Ingreso manual"));
    auto* datos = new QFormLayout;
    static const char* const kTitulos[] = {
        "Nº Prueba", "Profesor", "Curso", "Tipo Prueba", "Asignatura", "Formas", "Nº Alternativas"};
    int i = 0;
    for (const auto& [etiqueta, columna] : kEtiquetas) {
        auto* l = new QLabel(Datos_Ingreso().value(QString::fromUtf8(etiqueta)), this);
        l->setObjectName(QString::fromUtf8(etiqueta));
        datos->addRow(QString::fromUtf8(kTitulos[i++]) + QStringLiteral(":"), l);
    }
    CmbNunPreg = new QComboBox(this);
    CmbNunPreg->addItem(Datos_Ingreso().value(QStringLiteral("CmbNunPreg")));
    CmbNunPreg->setEnabled(false);
    CmbNFormas = new QComboBox(this);
    datos->addRow(QStringLiteral("Preguntas:"), CmbNunPreg);
    datos->addRow(QStringLiteral("Forma:"), CmbNFormas);
    SprAlterPreg.FijaCelda(0, 1, QStringLiteral("Pregunta"));
    SprAlterPreg.FijaCelda(0, 2, QStringLiteral("Alternativa"));
    auto* vista = new QTableView(this);
    vista->setObjectName(QStringLiteral("SprAlterPreg"));
    auto* modelo = new GrillaModelo(SprAlterPreg, vista);
    modelo->Editable(2);
    vista->setModel(modelo);
    vista->setItemDelegateForColumn(
        1,
        new CeldaLista(
            [] { return estado().Lista_Alternativas.split(QLatin1Char('\t'), Qt::SkipEmptyParts); },
            vista));
    vista->setEditTriggers(QAbstractItemView::AllEditTriggers);
    vista->verticalHeader()->setVisible(false);
    vista->verticalHeader()->setDefaultSectionSize(22);
    vista->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    XPButAceptar = Boton(this, QStringLiteral("XPButAceptar"), QStringLiteral("Grabar"),
                         [this] { XPButAceptar_Click(); });
    auto* cancelar = Boton(this, QStringLiteral("XPButCancelar"), QStringLiteral("Cancelar"),
                           [this] { close(); });
    datos->addRow(XPButAceptar, cancelar);
    auto* capa = new QHBoxLayout(this);
    capa->addWidget(vista, 1);
    capa->addLayout(datos);
    resize(640, 560);
    Form_Load();
}

QLabel* FrmIngManual::Etiqueta(const QString& nombre) const {
    return findChild<QLabel*>(nombre);
}

void FrmIngManual::Form_Load() {
    const Estado& e = estado();
    if (e.Id_Prueba_Actual == 0) {
        dialogos().MsgBox(
            QStringLiteral("Debe tener asociado un Numero de Prueba para el Ingreso manual"),
            vbCritical, QStringLiteral("Ingreso manual de Pruebas"));
        return;
    }
    SprAlterPreg.SetMaxRows(e.Preguntas_Actual);
    if (e.Numero_Formas_Actual >= 1 && e.Numero_Formas_Actual <= 4)
        for (int f = 1; f <= e.Numero_Formas_Actual; ++f) CmbNFormas->addItem(QString::number(f));
    CmbNFormas->setCurrentIndex(-1);
    Carga_Alternativas_Combo();
}

void FrmIngManual::Carga_Alternativas_Combo() {
    static const QString kLetras = QStringLiteral("ABCDE");
    const int n = estado().Ptje_Max_Actual;
    if (n >= 2 && n <= 5) {
        QStringList letras;
        for (int i = 0; i < n; ++i) letras << kLetras.mid(i, 1);
        estado().Lista_Alternativas = letras.join(QLatin1Char('\t'));
    }
    for (int fila = 1; fila <= SprAlterPreg.MaxRows(); ++fila)
        SprAlterPreg.FijaCelda(fila, 1, CStr(fila));
}

void FrmIngManual::XPButAceptar_Click() {
    Estado& e = estado();
    if (CmbNFormas->currentText().isEmpty()) {
        dialogos().MsgBox(QStringLiteral("Debe selecionar una forma, verifique"), vbCritical,
                          QStringLiteral("Ingreso Manual"));
        return;
    }
    for (int fila = 1; fila <= SprAlterPreg.MaxRows(); ++fila)
        if (SprAlterPreg.Celda(fila, 2).isEmpty()) {
            dialogos().MsgBox(QStringLiteral("Existen alternativas en Blanco, verifique"),
                              vbCritical, QStringLiteral("Ingreso Manual"));
            return;
        }
    const int16_t forma = CInt(Val(CmbNFormas->currentText()));
    e.Numero_Formas_Actual = forma;
    if (dialogos().MsgBox(QStringLiteral("Desea grabar los datos...?"), vbOKCancel,
                          QStringLiteral("Graba Pauta Manual")) != vbOK)
        return;
    Graba_Pauta(forma);
    Base().Execute(QStringLiteral("update prueba_rj set ingreso_pauta = 'S' Where IDPRUEBA = ?"),
                   {e.Id_Prueba_Actual});
    Descarga_Pantalla(QStringLiteral("frmCorrecPru"));
    dialogos().MsgBox(QStringLiteral("La pauta manual para la prueba ") +
                          CStr(int(e.Id_Prueba_Actual)) +
                          QStringLiteral(" ha sido grabado con éxito"),
                      vbOKOnly, QStringLiteral("Graba Pauta Manual"));
    close();
}

void FrmIngManual::Graba_Pauta(int16_t forma) {
    const int16_t id = estado().Id_Prueba_Actual;
    const bool existe =
        !Base()
             .OpenRecordset(
                 QStringLiteral(
                     " SELECT * FROM Resp_preguntas_pautas  Where IDPRUEBA = ? AND FORMA = ?"),
                 {id, forma})
             .Eof();
    if (existe &&
        dialogos().MsgBox(
            QStringLiteral("Esto Código de Prueba y Forma ya existe, desea regrabar los datos"),
            vbOKCancel + vbCritical, QStringLiteral("Creación de Pautas y Pruebas")) != vbOK)
        return;
    Transaccion t(Base());
    if (existe)
        Base().Execute(
            QStringLiteral(" delete FROM Resp_preguntas_pautas  Where IDPRUEBA = ? AND FORMA = ?"),
            {id, forma});
    for (int fila = 1; fila <= SprAlterPreg.MaxRows(); ++fila)
        Base().Execute(
            QStringLiteral(" insert into Resp_preguntas_pautas values (?, ?, ?, ?)"),
            {id, fila, forma, QStringLiteral("ABCDE").indexOf(SprAlterPreg.Celda(fila, 2)) + 1});
    t.Confirma();
}
