// The test list.
#include "grading/screens/frm_correc_pru.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include "app/estado.h"
#include "grading/correccion_alumnos.h"
#include "platform/base_datos.h"
#include "platform/dialogos.h"
#include "platform/numeros.h"
#include "platform/screens/grilla_modelo.h"
#include "platform/screens/navegacion.h"
#include "store/contadores.h"
#include "store/copias_prueba.h"
#include "store/rut.h"

namespace {

// Labels repeating the chosen test, in the order of SprPrincipal's columns, with their captions.
const char* const kEtiquetas[][2] = {
    {"LblCorrelativo", "Nº Prueba"}, {"LblNombre", "Nombre"},
    {"LblProfesor", "Profesor"},     {"LblCurso", "Curso"},
    {"LblTipPru", "Tipo Prueba"},    {"LblPreSelecc", "Preg. Selección"},
    {"LblAsig", "Asignatura"},       {"LblFecha", "Fecha"},
    {"LblNdforma", "Nº Forma"},      {"LblNAlternativa", "Nº Alternativas"},
    {"LblPauta", "Pauta"},
};
const char* const kCabezasPrincipal[] = {"Nº",          "Nombre",          "Profesor",   "Curso",
                                         "Tipo Prueba", "Preg. Selección", "Asignatura", "Fecha",
                                         "Nº Forma",    "Nº Alternativas", "Pauta"};
const char* const kCabezasResultado[] = {"Alumno", "Buenas", "Malas", "Omitidas", "Nota",
                                         "Forma",  " ",      " ",     " ",        "Orden Lectura"};

BaseDatos& Base() {
    return *estado().BaseDatos;
}

QTableView* Vista(Grilla& g, QWidget* padre) {
    auto* v = new QTableView(padre);
    v->setModel(new GrillaModelo(g, v));
    v->setSelectionBehavior(QAbstractItemView::SelectRows);
    v->setSelectionMode(QAbstractItemView::SingleSelection);
    v->setEditTriggers(QAbstractItemView::NoEditTriggers);
    v->verticalHeader()->setDefaultSectionSize(22);
    return v;
}

}  // namespace

frmCorrecPru::frmCorrecPru(QWidget* padre) : QWidget(padre) {
    setObjectName(QStringLiteral("frmCorrecPru"));
    setWindowTitle(QStringLiteral("Resumen Pruebas Ingresadas."));
    for (int c = 0; c < 11; ++c)
        SprPrincipal.FijaCelda(0, c + 1, QString::fromUtf8(kCabezasPrincipal[c]));
    for (int c = 0; c < 10; ++c)
        SprResulprucargada.FijaCelda(0, c + 1, QString::fromUtf8(kCabezasResultado[c]));
    Construye();
    LLena_Grilla_Principal();
    XPButton1->setEnabled(false);
}

void frmCorrecPru::Construye() {
    vista_principal_ = Vista(SprPrincipal, this);
    vista_resultados_ = Vista(SprResulprucargada, this);
    vista_resultados_->setColumnHidden(8, true);  // column 9 holds no data here
    auto* panel = new QGroupBox(QStringLiteral("Prueba seleccionada"), this);
    auto* datos = new QFormLayout(panel);
    for (const auto& [nombre, titulo] : kEtiquetas) {
        auto* l = new QLabel(panel);
        l->setObjectName(QString::fromUtf8(nombre));
        l->setTextInteractionFlags(Qt::TextSelectableByMouse);
        datos->addRow(QString::fromUtf8(titulo) + QStringLiteral(":"), l);
        etiquetas_ << l;
    }
    auto* eliminar = new QPushButton(QStringLiteral("Eliminar Prueba"), this);
    eliminar->setObjectName(QStringLiteral("CmdCarga_Lee"));
    XPButton1 = new QPushButton(QStringLiteral("Copiar Prueba"), this);
    datos->addRow(eliminar);
    datos->addRow(XPButton1);
    auto* abajo = new QHBoxLayout;
    abajo->addWidget(vista_resultados_, 1);
    abajo->addWidget(panel);
    auto* capa = new QVBoxLayout(this);
    capa->addWidget(vista_principal_, 1);
    capa->addLayout(abajo, 1);
    connect(vista_principal_, &QTableView::clicked, this, [this](const QModelIndex& i) {
        Ejecutar_Comando([&] { SprPrincipal_Click(i.row() + 1); });
    });
    connect(vista_principal_, &QTableView::doubleClicked, this, [this](const QModelIndex& i) {
        Ejecutar_Comando([&] { SprPrincipal_DblClick(i.row() + 1); });
    });
    connect(vista_resultados_, &QTableView::doubleClicked, this, [this](const QModelIndex& i) {
        Ejecutar_Comando([&] { SprResulprucargada_DblClick(i.row() + 1); });
    });
    connect(eliminar, &QPushButton::clicked, this,
            [this] { Ejecutar_Comando([this] { Elimina_Prueba(); }); });
    connect(XPButton1, &QPushButton::clicked, this,
            [this] { Ejecutar_Comando([this] { XPButton1_Click(); }); });
    resize(1180, 640);
}

QLabel* frmCorrecPru::Etiqueta(const QString& nombre) const {
    for (QLabel* l : etiquetas_)
        if (l->objectName() == nombre) return l;
    return nullptr;
}

void frmCorrecPru::Refresca_Vistas() {
    vista_principal_->resizeColumnsToContents();
    vista_resultados_->resizeColumnsToContents();
}

void frmCorrecPru::LLena_Grilla_Principal() {
    Recordset rs =
        Base().OpenRecordset(QStringLiteral("select * from prueba_rj order by idprueba desc "));
    SprPrincipal.SetMaxRows(rs.RecordCount());
    // Columns in the list's order, as positions of a prueba_rj row.
    static const int kCampos[] = {0, 1, 3, 5, 2, 8, 4, 7, 6, 10, 11};
    for (int fila = 1; !rs.Eof(); rs.MoveNext(), ++fila)
        for (int c = 0; c < 11; ++c) SprPrincipal.FijaCelda(fila, c + 1, rs[kCampos[c]].toString());
    Refresca_Vistas();
}

void frmCorrecPru::Limpia_Etiquetas() {
    for (QLabel* l : etiquetas_) l->clear();
}

void frmCorrecPru::SprPrincipal_Click(int fila) {
    fila_principal_ = fila;
    for (int f = 1; f <= SprResulprucargada.MaxRows(); ++f)
        for (int c = 1; c <= 8; ++c) SprResulprucargada.FijaCelda(f, c, QString());
    SprResulprucargada.SetMaxRows(1);
    etiquetas_[0]->setText(SprPrincipal.Celda(fila, 1));
    const int16_t id = CInt(Val(SprPrincipal.Celda(fila, 1)));
    if (id == 0) return;
    Estado& e = estado();
    e.Id_Prueba_Actual = id;
    for (int c = 2; c <= 11; ++c) etiquetas_[c - 1]->setText(SprPrincipal.Celda(fila, c));
    e.Nombre_Prueba_Actual = SprPrincipal.Celda(fila, 2);
    e.Profesor_Actual = SprPrincipal.Celda(fila, 3);
    e.Curso_Actual = SprPrincipal.Celda(fila, 4);
    e.Tipo_Prueba_Actual = SprPrincipal.Celda(fila, 5);
    e.Asignatura_Actual = SprPrincipal.Celda(fila, 7);
    e.Numero_Formas_Actual = CInt(Val(SprPrincipal.Celda(fila, 9)));
    e.Alternativas_Actual = CInt(Val(SprPrincipal.Celda(fila, 10)));
    e.Ptje_Max_Actual = e.Preguntas_Actual = CInt(Val(etiquetas_[5]->text()));
    Carga_Detalle_Prueba(id);
    XPButton1->setEnabled(true);
}

void frmCorrecPru::SprPrincipal_DblClick(int fila) {
    if (SprPrincipal.Celda(fila, 11) != QLatin1String("N")) return;
    // The key entry reads the number of alternatives from the maximum points.
    estado().Preguntas_Actual = CInt(Val(SprPrincipal.Celda(fila, 6)));
    estado().Ptje_Max_Actual = CInt(Val(SprPrincipal.Celda(fila, 10)));
    Muestra_Pantalla(QStringLiteral("FrmOPCPautas"));
}

void frmCorrecPru::Agrega_Fila_Resultado() {
    const int fila = SprResulprucargada.MaxRows() + 1;
    SprResulprucargada.SetMaxRows(fila);
    SprResulprucargada.SetBackColor(fila, 1, ColorBlanco);
    for (int c = 2; c <= 8; ++c) SprResulprucargada.FijaCelda(fila, c, QStringLiteral("0"));
}

void frmCorrecPru::Carga_Detalle_Prueba(int16_t idprueba) {
    Grilla descarte(1, 9);  // the surname is looked up but not shown
    Recordset rs = Base().OpenRecordset(
        QStringLiteral("select * from ResultadoAlumnos_rj where idprueba = ?"), {idprueba});
    for (; !rs.Eof(); rs.MoveNext()) {
        const QString rut = rs[QStringLiteral("Rut")].toString();
        Fnc_Nombre_Alumno(rut, descarte);
        Trae_Notas_Alumno(rut);
        Agrega_Fila_Resultado();
    }
    for (int f = 1; f <= SprResulprucargada.MaxRows(); ++f) {
        if (!SprResulprucargada.Celda(f, 1).isEmpty())
            SprResulprucargada.SetBackColor(f, 1, ColorBlanco);
        if (Val(SprResulprucargada.Celda(f, 6)) < 4)
            SprResulprucargada.SetBackColor(f, 6, ColorBlanco);
    }
    Recordset sin_forma = Base().OpenRecordset(
        QStringLiteral(" select distinct rut_alumno From respuesta_alumnos_por_rut  Where idprueba "
                       "= ? and forma = 99"),
        {idprueba});
    for (; !sin_forma.Eof(); sin_forma.MoveNext()) {
        Fnc_Nombre_Alumno(sin_forma[0].toString(), descarte);
        const int fila = SprResulprucargada.MaxRows();
        SprResulprucargada.FijaCelda(fila, 6, QStringLiteral("99"));
        SprResulprucargada.SetBackColor(fila, 6, ColorRojo);
        SprResulprucargada.SetForeColor(fila, 6, ColorNegro);
        Agrega_Fila_Resultado();
    }
    // The spare row left by the last addition goes.
    SprResulprucargada.SetMaxRows(SprResulprucargada.MaxRows() - 1);
    Refresca_Vistas();
}

void frmCorrecPru::Trae_Notas_Alumno(const QString& rut) {
    Grilla& g = SprResulprucargada;
    const int fila = g.MaxRows();
    Recordset rs = Base().OpenRecordset(
        QStringLiteral("SELECT * FROM ResultadoAlumnos_rj where rut = ? and idprueba = ?"),
        {rut, estado().Id_Prueba_Actual});
    for (; !rs.Eof(); rs.MoveNext()) {
        const int buenas = rs[QStringLiteral("Buenas")].toInt();
        const int malas = rs[QStringLiteral("Malas")].toInt();
        const int nulas = rs[QStringLiteral("Nulas")].toInt();
        g.FijaCelda(fila, 2, CStr(buenas));
        g.FijaCelda(fila, 3, CStr(malas + nulas));
        const int16_t t = CInt(buenas + malas + nulas);
        g.FijaCelda(fila, 4, rs[QStringLiteral("Omitidas")].toString());
        const QVariant nota = rs[QStringLiteral("Nota")];
        if (!nota.isNull() && Val(nota.toString().replace(',', '.')) == 0 && t >= 1) {
            Calcula_Notas_Tabla(corrector_.Notas);
            Resultados_Alumnos_Pruebas_Reparacion(corrector_);
        }
        g.FijaCelda(fila, 5, CStr(Round(Val(nota.toString().replace(',', '.')), 2)));
        const QString forma = rs[QStringLiteral("Forma")].toString();
        g.FijaCelda(fila, 6, forma);
        if (forma == QLatin1String("99")) {
            g.SetBackColor(fila, 6, ColorRojo);
            g.SetForeColor(fila, 6, ColorNegro);
        }
        g.FijaCelda(fila, 7, rut);
        if (!Fnc_Valida_Rut(rut)) {
            g.SetBackColor(fila, 1, ColorAmarillo);
            g.FijaCelda(fila, 8, QStringLiteral("RM"));
        }
    }
}

void frmCorrecPru::SprResulprucargada_DblClick(int fila) {
    Estado& e = estado();
    e.Rut_Malo = e.Forma_Mala = false;
    e.Fila_Enmienda = -1;
    const Grilla& g = SprResulprucargada;
    if (g.Celda(fila, 8) == QLatin1String("RM")) {
        e.Rut_Malo = true;
        e.Fila_Enmienda = fila;
        e.Rut_Actual = g.Celda(fila, 7);
        if (Val(g.Celda(fila, 6)) != 0) e.Forma_Mala = true;
        Muestra_Modal(QStringLiteral("FrmModfRut"));
        return;
    }
    if (!g.Celda(fila, 6).isEmpty() && Val(g.Celda(fila, 6)) == 99) {
        e.Fila_Enmienda = fila;
        e.Rut_Actual = g.Celda(fila, 1);
        dialogos().MsgBox(
            Lineas({QStringLiteral("El alumno :"), e.Rut_Actual,
                    QStringLiteral(
                        "esta sin FORMA, favor marque la forma correcta y repita el proceso")}),
            vbInformation, QStringLiteral("Notas Alumnos"));
    }
}

void frmCorrecPru::Elimina_Prueba() {
    const int16_t id = estado().Id_Prueba_Actual;
    if (id == 0) return;
    if (fila_principal_ < 1 || SprPrincipal.Celda(fila_principal_, 1).isEmpty()) {
        dialogos().MsgBox(QStringLiteral("Debe seleccionar una prueba para poder eliminar"),
                          vbCritical, QStringLiteral("Elimina Prueba"));
        return;
    }
    Transaccion t(Base());
    for (const char* tabla :
         {"prueba_rj", "Resp_preguntas_pautas", "respuesta_alumnos_por_rut", "ResultadoAlumnos_rj"})
        Base().Execute(
            QStringLiteral("DELETE FROM %1 WHERE IdPrueba = ?").arg(QString::fromUtf8(tabla)),
            {id});
    t.Confirma();
    dialogos().MsgBox(
        QStringLiteral("La prueba Nº ") + CStr(int(id)) + QStringLiteral(" ha sido eliminada"),
        vbOKOnly, QStringLiteral("Registro eliminado"));
    Limpia_Etiquetas();
    SprPrincipal.SetMaxRows(0);
    SprResulprucargada.SetMaxRows(0);
    LLena_Grilla_Principal();
}

void frmCorrecPru::XPButton1_Click() {
    Estado& e = estado();
    const int r =
        dialogos().MsgBox(QStringLiteral("Desea copiar esta prueba ") + e.Nombre_Prueba_Actual,
                          vbOKCancel + vbInformation, QStringLiteral("Copia Prueba"));
    e.Copia_Activa = false;
    if (r != vbOK) return;
    e.Copia_Activa = true;
    e.Id_Prueba_Copia = Siguiente_Indice(QStringLiteral("PRUEBA"));
    e.Id_Prueba_Origen = e.Id_Prueba_Actual;
    if (e.Tipo_Prueba_Actual == QLatin1String("GENERAL"))
        Muestra_Pantalla(QStringLiteral("FrmGenePru"));
    else if (e.Tipo_Prueba_Actual == QLatin1String("PSU"))
        Muestra_Pantalla(QStringLiteral("FrmGenePsuPru"));
    else if (e.Tipo_Prueba_Actual == QLatin1String("SIMCE"))
        Muestra_Pantalla(QStringLiteral("FrmGeneSimcePru"));
}
