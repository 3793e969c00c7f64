// FrmAlumnos, "Mantención Alumnos".
#include "masters/screens/frm_alumnos.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QTableView>

#include "app/estado.h"
#include "masters/carga_alumnos.h"
#include "masters/carga_planilla.h"
#include "platform/base_datos.h"
#include "platform/dialogos.h"
#include "platform/screens/controles.h"
#include "platform/screens/lista_clave.h"
#include "store/rut.h"

namespace {

const QString kGeneral = QStringLiteral("Mantenedores en general");

BaseDatos& base() {
    return *estado().BaseDatos;
}

}  // namespace

FrmAlumnos::FrmAlumnos(QWidget* padre) : QWidget(padre) {
    setObjectName(QStringLiteral("FrmAlumnos"));
    setWindowTitle(QStringLiteral("Mantención Alumnos"));
    TxtRut = Caja(this, QStringLiteral("TxtRut"));
    TxtNombre = Caja(this, QStringLiteral("TxtNombre"));
    TxtCurso = Caja(this, QStringLiteral("TxtCurso"));
    txtBuscaRut = Caja(this, QStringLiteral("txtBuscaRut"));
    CboCurso = new QComboBox(this);
    CboCurso->setObjectName(QStringLiteral("CboCurso"));
    CboCurso->setMinimumContentsLength(18);
    CboCurso->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    Filtra_Teclas(TxtRut, [](int c) { return Filtra_Tecla_Rut(c); });
    Mayusculas(TxtNombre);
    Mayusculas(TxtCurso);
    connect(TxtNombre, &QLineEdit::returnPressed, TxtRut, [this] { TxtRut->setFocus(); });
    connect(txtBuscaRut, &QLineEdit::textChanged, this,
            [this] { Ejecutar_Comando([this] { txtBuscaRut_Change(); }); });
    vista_ = Vista_Grilla(this, QStringLiteral("SprAlumnos"), SprAlumnos,
                          [this](int f) { SprAlumnos_Click(f); });

    auto* capa = new QGridLayout(this);
    capa->addWidget(new QLabel(QStringLiteral("Rut"), this), 0, 0);
    capa->addWidget(TxtRut, 0, 1);
    capa->addWidget(new QLabel(QStringLiteral("(Ejemplo --- 99999999-9)"), this), 0, 2);
    capa->addWidget(new QLabel(QStringLiteral("Nombre"), this), 1, 0);
    capa->addWidget(TxtNombre, 1, 1, 1, 2);
    capa->addWidget(new QLabel(QStringLiteral("Curso"), this), 2, 0);
    capa->addWidget(TxtCurso, 2, 1);
    capa->addWidget(CboCurso, 2, 2);
    capa->addWidget(new QLabel(QStringLiteral("Buscar Rut"), this), 3, 0);
    capa->addWidget(txtBuscaRut, 3, 1);
    capa->addWidget(vista_, 4, 0, 1, 4);
    auto* botones =
        Columna_Botones(this, {{"XPButAceptar", "Aceptar", [this] { XPButAceptar_Click(); }},
                               {"XPButElimina", "Eliminar", [this] { XPButElimina_Click(); }},
                               {"XPButActualiza", "Actualizar", [this] { XPButActualiza_Click(); }},
                               {"CmdCarga", "Cargar Planilla", [this] { CmdCarga_Click(); }},
                               {"XPButCancelar", "Cancelar", [this] { close(); }}});
    capa->addLayout(botones, 0, 3, 4, 1);
    resize(900, 560);
    Ejecutar_Comando([this] { Form_Load(); });
}

void FrmAlumnos::Form_Load() {
    SprAlumnos.FijaCelda(0, 1, QStringLiteral("Rut"));
    SprAlumnos.FijaCelda(0, 2, QStringLiteral("Nombre"));
    SprAlumnos.FijaCelda(0, 3, QStringLiteral("Curso"));
    // Widths of 10 and 30 characters of capitals.
    vista_->setColumnWidth(0, fontMetrics().horizontalAdvance(QString(10, u'N')) + 12);
    vista_->setColumnWidth(1, fontMetrics().horizontalAdvance(QString(30, u'N')) + 12);
    vista_->horizontalHeader()->setStretchLastSection(true);
    Carga_Grilla_Alumnos();
    Carga_Cursos();
}

void FrmAlumnos::Carga_Cursos() {
    CboCurso->clear();
    for (Recordset rs = base().OpenRecordset(QStringLiteral("select * from CURSOS ")); !rs.Eof();
         rs.MoveNext())
        Agrega_Item(CboCurso, rs[0].toString(), rs[1].toString() + u' ' + rs[2].toString());
    CboCurso->setCurrentIndex(-1);
}

void FrmAlumnos::Agrega_Alumno(const QString& rut, const QString& nombre, const QString& curso) {
    const int fila = SprAlumnos.MaxRows() + 1;
    SprAlumnos.SetMaxRows(fila);
    SprAlumnos.FijaCelda(fila, 1, rut);
    SprAlumnos.FijaCelda(fila, 2, nombre);
    SprAlumnos.FijaCelda(fila, 3, curso);
}

void FrmAlumnos::Carga_Grilla_Alumnos() {
    SprAlumnos.SetMaxRows(0);
    for (Recordset rs = base().OpenRecordset(QStringLiteral("ALUMNOS")); !rs.Eof(); rs.MoveNext())
        Agrega_Alumno(rs[QStringLiteral("Rut")].toString(),
                      rs[QStringLiteral("PRIMERAPELLIDO")].toString(),
                      rs[QStringLiteral("curso")].toString());
}

void FrmAlumnos::SprAlumnos_Click(int fila) {
    TxtRut->setText(SprAlumnos.Celda(fila, 1));
    TxtNombre->setText(SprAlumnos.Celda(fila, 2));
    TxtCurso->setText(SprAlumnos.Celda(fila, 3));
    CboCurso->setCurrentIndex(Busca_Item(*CboCurso, TxtCurso->text()));
}

bool FrmAlumnos::Falta(QLineEdit* caja, const QString& texto) {
    if (!caja->text().isEmpty()) return false;
    dialogos().MsgBox(texto, vbExclamation, kGeneral);
    caja->setFocus();
    return true;
}

void FrmAlumnos::Inserta_Alumno(const QString& rut) {
    base().Execute(QStringLiteral(" insert into ALUMNOS values (?, ?, ?, 0)"),
                   {rut, TxtNombre->text(), TxtCurso->text().trimmed()});
}

void FrmAlumnos::Limpia_Campos() {
    TxtRut->clear();
    TxtNombre->clear();
    TxtCurso->clear();
}

void FrmAlumnos::XPButAceptar_Click() {
    if (Falta(TxtNombre, QStringLiteral("Debe ingresar el Nombre del alumno"))) return;
    if (Falta(TxtRut, QStringLiteral("Debe ingresar el Rut del alumno"))) return;
    if (CboCurso->currentText().isEmpty()) {
        dialogos().MsgBox(QStringLiteral("Debe ingresar el Curso del alumno"), vbExclamation,
                          kGeneral);
        return;
    }
    TxtCurso->setText(Texto_Item(Item_Lista(*CboCurso)));
    if (!Fnc_Valida_Rut(TxtRut->text())) {
        dialogos().MsgBox(QStringLiteral("Rut ingresado no es valido"), vbCritical,
                          QStringLiteral("Aceptar"));
        TxtRut->setFocus();
        return;
    }
    const QString rut = Rut_Mayuscula(TxtRut->text());
    if (base()
            .OpenRecordset(QStringLiteral(" select rut from ALUMNOS where rut = ?"), {rut})
            .Eof()) {
        Inserta_Alumno(rut);
        dialogos().MsgBox(QStringLiteral("El Alumno se ha creado con éxito en la base de datos"),
                          vbInformation, windowTitle());
    } else if (dialogos().MsgBox(
                   QStringLiteral("El alumno existe en la base de datos, desea reemplazarlo"),
                   vbOKCancel + vbQuestion, windowTitle()) == vbOK) {
        base().Execute(QStringLiteral(" delete from ALUMNOS  where rut = ?"), {rut});
        Inserta_Alumno(rut);
        dialogos().MsgBox(QStringLiteral("El alumno ") + rut +
                              QStringLiteral(" se ha creado con éxito en la base de datos"),
                          vbInformation, windowTitle());
    }
    Carga_Grilla_Alumnos();
    Limpia_Campos();
    TxtNombre->setFocus();
}

void FrmAlumnos::XPButElimina_Click() {
    const QString rut = TxtRut->text();
    if (rut.isEmpty()) {
        dialogos().MsgBox(QStringLiteral("No se ha seleccionado ningún Alumno"), vbInformation,
                          QStringLiteral("Mantenedor Alumno"));
        return;
    }
    const QString confirmacion = QStringLiteral("Confirmación");
    if (dialogos().MsgBox(Lineas({QStringLiteral("¿Desea eliminar Alumno Nº ") + rut,
                                  QStringLiteral("desde base de datos?")}),
                          vbOKCancel + vbQuestion, confirmacion) != vbOK)
        return;
    if (dialogos().MsgBox(
            Lineas({QStringLiteral("¿Realmente esta SEGURO de ELIMINAR este Alumno Nº ") + rut +
                        QStringLiteral(" desde la base de datos? "),
                    QStringLiteral("¡¡¡ No se podrán recuperar datos !!!")}),
            vbOKCancel + vbExclamation, confirmacion) != vbOK)
        return;
    base().Execute(QStringLiteral("DELETE FROM ALUMNOS WHERE RUT = ?"), {rut});
    base().Execute(QStringLiteral("DELETE FROM respuesta_alumnos_por_rut WHERE rut_alumno = ?"),
                   {rut});
    base().Execute(QStringLiteral("DELETE FROM ResultadoAlumnos_rj WHERE Rut = ?"), {rut});
    Carga_Grilla_Alumnos();
    txtBuscaRut->clear();
    Limpia_Campos();
    dialogos().MsgBox(QStringLiteral("El Alumno ha sido eliminado"), vbInformation,
                      QStringLiteral("Registro eliminado"));
}

void FrmAlumnos::XPButActualiza_Click() {
    Carga_Grilla_Alumnos();
    Carga_Cursos();
}

void FrmAlumnos::txtBuscaRut_Change() {
    if (txtBuscaRut->text().isEmpty()) return;
    SprAlumnos.SetMaxRows(0);
    // A search from the start of the rut: "%" and "_" typed in the box are plain characters.
    QString prefijo = txtBuscaRut->text();
    prefijo.replace(u'\\', QLatin1String("\\\\"))
        .replace(u'%', QLatin1String("\\%"))
        .replace(u'_', QLatin1String("\\_"));
    Recordset rs = base().OpenRecordset(
        QStringLiteral("SELECT * FROM ALUMNOS Where rut like ? escape '\\'"), {prefijo + u'%'});
    for (; !rs.Eof(); rs.MoveNext())
        Agrega_Alumno(rs[QStringLiteral("Rut")].toString(),
                      rs[QStringLiteral("PRIMERAPELLIDO")].toString(),
                      rs[QStringLiteral("curso")].toString());
}

void FrmAlumnos::CmdCarga_Click() {
    const QString ruta = Elige_Planilla(
        {.filtro = QStringLiteral(" *.xlsx|*.xlsx"),
         .titulo = QStringLiteral("Mantenedor de Profesores"),
         .sin_archivo = QStringLiteral("No se ha seleccionado ningún archivo"),
         .sin_extension = QStringLiteral("El archivo seleccionado no es extensión TXT, verifique"),
         .titulo_sin_archivo = QStringLiteral("Mantenedor de Alumnos")});
    if (ruta.isEmpty()) return;
    Carga_Masiva_Por_Archivo(ruta);
    Carga_Grilla_Alumnos();
}

void FrmAlumnos::Carga_Masiva_Por_Archivo(const QString& ruta) {
    struct Reloj {
        Reloj() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
        ~Reloj() { QGuiApplication::restoreOverrideCursor(); }
    } reloj;
    const CargaAlumnos carga = Carga_Alumnos_Planilla(ruta);
    if (!carga.completa) return;
    CboCurso->clear();
    for (int i = 0; i < carga.cursos.size(); ++i)
        Agrega_Item(CboCurso, carga.cursos[i], QStringLiteral("0 ") + QString::number(i + 1));
    CboCurso->setCurrentIndex(-1);
    dialogos().MsgBox(QStringLiteral("Se han insertado ") + QString::number(carga.fila - 1) +
                          QStringLiteral(" alumnos"),
                      vbInformation, QStringLiteral("Mantenedor de Alumnos"));
}
