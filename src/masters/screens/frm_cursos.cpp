// FrmCursos, "Mantenedor de Cursos".
#include "masters/screens/frm_cursos.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>

#include "app/estado.h"
#include "platform/base_datos.h"
#include "platform/dialogos.h"
#include "platform/screens/controles.h"
#include "platform/screens/lista_clave.h"
#include "store/contadores.h"

namespace {

const QString kTitulo = QStringLiteral("Mantenedor de Cursos");

BaseDatos& base() {
    return *estado().BaseDatos;
}

}  // namespace

FrmCursos::FrmCursos(QWidget* padre) : QWidget(padre) {
    setObjectName(QStringLiteral("FrmCursos"));
    setWindowTitle(kTitulo);
    TxtCurso = Caja(this, QStringLiteral("TxtCurso"));
    TxtNivel = Caja(this, QStringLiteral("TxtNivel"));
    Filtra_Teclas(TxtNivel, [](int c) { return (c >= '0' && c <= '9') || c == 8 ? c : 0; });
    Al_Salir(TxtNivel, [this] { TxtNivel_LostFocus(); });
    CboNivel = new QComboBox(this);
    CboNivel->setObjectName(QStringLiteral("CboNivel"));
    CboNivel->setMinimumContentsLength(16);
    CboNivel->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    LstCursos = new QListWidget(this);
    LstCursos->setObjectName(QStringLiteral("LstCursos"));
    connect(LstCursos, &QListWidget::currentRowChanged, this,
            [this](int f) { Ejecutar_Comando([&] { LstCursos_Click(f); }); });

    auto* capa = new QGridLayout(this);
    capa->addWidget(new QLabel(QStringLiteral("Curso"), this), 0, 0);
    capa->addWidget(TxtCurso, 0, 1);
    capa->addWidget(new QLabel(QStringLiteral("Nivel"), this), 1, 0);
    capa->addWidget(TxtNivel, 1, 1);
    capa->addWidget(CboNivel, 2, 1);
    capa->addWidget(LstCursos, 3, 0, 1, 3);
    auto* botones =
        Columna_Botones(this, {{"XPButAceptar", "Aceptar", [this] { XPButAceptar_Click(); }},
                               {"XPButton1", "Eliminar", [this] { XPButton1_Click(); }},
                               {"XPButCancelar", "Cancelar", [this] { close(); }}});
    capa->addLayout(botones, 0, 2, 3, 1);
    resize(520, 440);
    Ejecutar_Comando([this] { Carga_Curso(); });
}

void FrmCursos::Carga_Curso() {
    const QSignalBlocker quieto(LstCursos);
    LstCursos->clear();
    for (Recordset rs =
             base().OpenRecordset(QStringLiteral("select * from CURSOS ORDER BY IDNIVEL"));
         !rs.Eof(); rs.MoveNext())
        Agrega_Item(LstCursos, rs[0].toString(), rs[2].toString());
    CboNivel->clear();
    for (Recordset rs =
             base().OpenRecordset(QStringLiteral("select idniveles, nivel from Niveles "));
         !rs.Eof(); rs.MoveNext())
        Agrega_Item(CboNivel, rs[1].toString(), rs[0].toString());
    CboNivel->setCurrentIndex(-1);
}

// The name box gets the first 15 characters of the item, spaces included.
void FrmCursos::LstCursos_Click(int fila) {
    if (fila < 0) return;
    const QString item = Item_Lista(*LstCursos->item(fila));
    TxtCurso->setText(item.left(15));
    TxtNivel->setText(Clave_Item(item));
}

void FrmCursos::TxtNivel_LostFocus() {
    if (TxtNivel->text().isEmpty())
        dialogos().MsgBox(QStringLiteral("No puede dejar el nivel en blanco"), vbCritical, kTitulo);
}

void FrmCursos::XPButAceptar_Click() {
    const QString general = QStringLiteral("Mantenedores en general");
    if (TxtCurso->text().isEmpty()) {
        dialogos().MsgBox(QStringLiteral("Debe ingresar Curso"), vbExclamation, general);
        return;
    }
    if (CboNivel->currentText().isEmpty()) {
        dialogos().MsgBox(QStringLiteral("Debe Seleccionar un nivel Curso"), vbExclamation,
                          general);
        return;
    }
    const int16_t numero = Siguiente_Indice(QStringLiteral("CURSO"));
    const QString curso = TxtCurso->text();
    if (base()
            .OpenRecordset(QStringLiteral(" select curso from cursos where curso = ?"), {curso})
            .Eof()) {
        base().Execute(QStringLiteral(" insert into cursos values (?, ?, ?)"),
                       {curso, Clave_Item(Item_Lista(*CboNivel)), numero});
    } else if (dialogos().MsgBox(
                   QStringLiteral("El curso existe en la base de datos, desea reemplazarlo"),
                   vbOKCancel + vbQuestion, kTitulo) == vbOK) {
        // These two name the table without its "s" and fail: a course is never replaced.
        base().Execute(QStringLiteral(" delete from curso  where curso= ?"), {curso});
        base().Execute(QStringLiteral(" insert into curso values (?, ?, ?)"),
                       {curso, TxtNivel->text(), numero});
    }
    dialogos().MsgBox(QStringLiteral("El Curso se ha creado con éxito en la base de datos"),
                      vbInformation, kTitulo);
    TxtCurso->clear();
    TxtNivel->clear();
    CboNivel->setCurrentIndex(-1);
    Carga_Curso();
}

void FrmCursos::XPButton1_Click() {
    const QListWidgetItem* item = LstCursos->currentItem();
    if (!item) return;
    if (dialogos().MsgBox(
            QStringLiteral("Desea Eliminar el Curso ") + Texto_Item(Item_Lista(*item)),
            vbOKCancel + vbQuestion, kTitulo) != vbOK)
        return;
    base().Execute(QStringLiteral(" delete from CURSOS  where idcurso = ?"),
                   {Clave_Item(Item_Lista(*item))});
    Carga_Curso();
}
