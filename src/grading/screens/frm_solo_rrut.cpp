// The manual student choice of the reading run.
#include "grading/screens/frm_solo_rrut.h"

#include <QHeaderView>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include "app/estado.h"
#include "platform/base_datos.h"
#include "platform/dialogos.h"
#include "platform/screens/grilla_modelo.h"
#include "store/rut.h"

Frm_SoloRrut::Frm_SoloRrut(const QString& curso, QWidget* padre)
    : QDialog(padre), curso_(curso), vista_(new QTableView(this)) {
    setWindowTitle(QStringLiteral("Seleccione Rut Alumno"));
    Spr_Alumnos.FijaCelda(0, 1, QStringLiteral("Nombre Alumno"));
    Spr_Alumnos.FijaCelda(0, 2, QStringLiteral("RUT"));
    vista_->setModel(new GrillaModelo(Spr_Alumnos, vista_));
    vista_->setSelectionBehavior(QAbstractItemView::SelectRows);
    vista_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    vista_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    auto* teclear = new QPushButton(QStringLiteral("Ingresar Rut"), this);
    auto* capa = new QVBoxLayout(this);
    capa->addWidget(vista_);
    capa->addWidget(teclear);
    connect(vista_, &QTableView::clicked, this,
            [this](const QModelIndex& i) { Spr_Alumnos_Click(i.row() + 1); });
    connect(teclear, &QPushButton::clicked, this,
            [this] { Ejecutar_Comando([this] { XPButton1_Click(); }); });
    resize(420, 480);
    Form_Load();
}

void Frm_SoloRrut::Form_Load() {
    Recordset rs = estado().BaseDatos->OpenRecordset(
        QStringLiteral("SELECT RUT, PRIMERAPELLIDO FROM ALUMNOS  WHERE CURSO = ? order by "
                       "PRIMERAPELLIDO collate ESPANOL"),
        {curso_});
    Spr_Alumnos.SetMaxRows(rs.RecordCount());
    for (int fila = 1; !rs.Eof(); rs.MoveNext(), ++fila) {
        Spr_Alumnos.FijaCelda(fila, 1, rs[1].toString());
        Spr_Alumnos.FijaCelda(fila, 2, rs[0].toString());
    }
    if (Spr_Alumnos.MaxRows() == 0)
        dialogos().MsgBox(QStringLiteral("No se han cargado alumnos para el curso : ") + curso_,
                          vbOKOnly, QStringLiteral("Selección de alumnos manual"));
}

void Frm_SoloRrut::Spr_Alumnos_Click(int fila) {
    Rut_Manual.clear();
    Rut_Manual = Spr_Alumnos.Celda(fila, 2);
    accept();
}

void Frm_SoloRrut::XPButton1_Click() {
    Rut_Manual =
        Rut_Mayuscula(dialogos().InputBox(QStringLiteral("Ingrese el Rut correcto..."),
                                          QStringLiteral("Ingrese Numero de Rut..."), QString()));
    accept();
}
