// FrmProfesores, "Mantenedor de Profesores".
#include "masters/screens/frm_profesores.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>

#include "app/estado.h"
#include "masters/carga_planilla.h"
#include "platform/base_datos.h"
#include "platform/dialogos.h"
#include "platform/screens/controles.h"

namespace {

const QString kTitulo = QStringLiteral("Mantenedor de Profesores");

BaseDatos& base() {
    return *estado().BaseDatos;
}

// The number box takes digits, "-" and "k"; other keys are dropped.
int Tecla_Numero(int codigo) {
    const bool pasa =
        (codigo >= '0' && codigo <= '9') || codigo == '-' || codigo == 'k' || codigo == 8;
    return pasa ? codigo : 0;
}

}  // namespace

FrmProfesores::FrmProfesores(QWidget* padre) : QWidget(padre) {
    setObjectName(QStringLiteral("FrmProfesores"));
    setWindowTitle(kTitulo);
    TxtNombre = Caja(this, QStringLiteral("TxtNombre"));
    TxtRut = Caja(this, QStringLiteral("TxtRut"));
    Filtra_Teclas(TxtRut, Tecla_Numero);
    SprProfesores.FijaCelda(0, 1, QStringLiteral("Nombre Profesor"));
    SprProfesores.FijaCelda(0, 2, QStringLiteral("Número"));
    QTableView* vista = Vista_Grilla(this, QStringLiteral("SprProfesores"), SprProfesores,
                                     [this](int f) { SprProfesores_Click(f); });
    vista->setColumnWidth(0, 330);
    vista->horizontalHeader()->setStretchLastSection(true);

    auto* capa = new QGridLayout(this);
    capa->addWidget(new QLabel(QStringLiteral("Nombre"), this), 0, 0);
    capa->addWidget(TxtNombre, 0, 1);
    capa->addWidget(new QLabel(QStringLiteral("Número"), this), 1, 0);
    capa->addWidget(TxtRut, 1, 1);
    capa->addWidget(vista, 2, 0, 1, 3);
    auto* botones =
        Columna_Botones(this, {{"XPButAceptar", "Aceptar", [this] { XPButAceptar_Click(); }},
                               {"XPButton1", "Eliminar", [this] { XPButton1_Click(); }},
                               {"CmdCarga", "Cargar Planilla", [this] { CmdCarga_Click(); }},
                               {"XPButCancelar", "Cancelar", [this] { close(); }}});
    capa->addLayout(botones, 0, 2, 2, 1);
    resize(560, 480);
    Ejecutar_Comando([this] { Carga_Profesores(); });
}

void FrmProfesores::Carga_Profesores() {
    SprProfesores.SetMaxRows(0);
    Recordset rs = base().OpenRecordset(
        QStringLiteral("select * from Profesores order by nombreprofesor collate ESPANOL"));
    SprProfesores.SetMaxRows(rs.RecordCount());
    for (int fila = 1; !rs.Eof(); rs.MoveNext(), ++fila) {
        SprProfesores.FijaCelda(fila, 1, rs[0].toString());
        SprProfesores.FijaCelda(fila, 2, rs[1].toString());
    }
}

void FrmProfesores::SprProfesores_Click(int fila) {
    TxtNombre->setText(SprProfesores.Celda(fila, 1));
    TxtRut->setText(SprProfesores.Celda(fila, 2));
}

QString FrmProfesores::Numero_Nuevo() const {
    int numero =
        base().OpenRecordset(QStringLiteral(" select COUNT(*) from profesores "))[0].toInt() + 1;
    while (!base()
                .OpenRecordset(QStringLiteral(" select * from profesores  where rut = ?"), {numero})
                .Eof())
        ++numero;
    return QString::number(numero);
}

void FrmProfesores::XPButAceptar_Click() {
    const QString nombre = TxtNombre->text();
    if (nombre.isEmpty()) {
        dialogos().MsgBox(QStringLiteral("Debe ingresar el nombre del Profesor"), vbExclamation,
                          QStringLiteral("Mantenedores en General"));
        return;
    }
    Recordset rs = base().OpenRecordset(
        QStringLiteral(" select rut from profesores  where nombreprofesor = ?"), {nombre});
    const QString insertar = QStringLiteral(" insert into profesores values (?, ?)");
    if (rs.Eof()) {
        base().Execute(insertar, {nombre, Numero_Nuevo()});
        dialogos().MsgBox(QStringLiteral("El Profesor se ha creado con éxito en la base de datos"),
                          vbInformation, kTitulo);
    } else if (dialogos().MsgBox(
                   QStringLiteral("El Profesor existe en la base de datos, desea reemplazarlo"),
                   vbOKCancel + vbQuestion, kTitulo) == vbOK) {
        const QString numero = Numero_Nuevo();
        base().Execute(QStringLiteral(" delete from profesores  where rut = ?"), {rs[0]});
        base().Execute(insertar, {nombre, numero});
    }
    Carga_Profesores();
}

void FrmProfesores::XPButton1_Click() {
    const QString nombre = TxtNombre->text();
    if (dialogos().MsgBox(QStringLiteral("Desea Eliminar al Profesor ") + nombre,
                          vbOKCancel + vbQuestion, kTitulo) != vbOK)
        return;
    base().Execute(QStringLiteral(" delete from profesores  where NombreProfesor = ?"), {nombre});
    Carga_Profesores();
}

void FrmProfesores::CmdCarga_Click() {
    const QString ruta =
        Elige_Planilla({.filtro = QStringLiteral("Archivos xlsx|*.xlsx"),
                        .titulo = kTitulo,
                        .sin_archivo = QStringLiteral("No se ha seleccionado ningún archivo"),
                        .sin_extension = QStringLiteral(
                            "El archivo seleccionado no es extensión xls, verifique")});
    if (!ruta.isEmpty()) Carga_Masiva_Por_Archivo(ruta);
}

void FrmProfesores::Carga_Masiva_Por_Archivo(const QString& ruta) {
    const int cuenta = Reemplaza_Con_Planilla(
        ruta, QStringLiteral(" delete from profesores "), 100,
        [](BaseDatos& b, const PlanillaLectura& hoja, int fila) {
            b.Execute(QStringLiteral(" insert into profesores values (?, ?)"),
                      {hoja.Celda(fila, QStringLiteral("A")).remove(u','), fila});
        });
    dialogos().MsgBox(QStringLiteral("Se han insertado ") + QString::number(cuenta) +
                          QStringLiteral(" Profesores"),
                      vbInformation, kTitulo);
    Carga_Profesores();
}
