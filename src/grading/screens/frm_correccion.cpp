// Amending a test's key and recomputing the grades of one form.
#include "grading/screens/frm_correccion.h"

#include <QApplication>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTableView>

#include "app/estado.h"
#include "grading/enmienda_notas.h"
#include "grading/persistencia_respuestas.h"
#include "grading/screens/piezas.h"
#include "platform/base_datos.h"
#include "platform/dialogos.h"
#include "platform/error_ejecucion.h"
#include "platform/numeros.h"
#include "platform/screens/controles.h"

namespace {

const QString kTitulo = QStringLiteral("Modificación de Alternativas...");
const char* const kCabezas[] = {"Idprueba", "Rut",   "Nombre",  "Buenas",      "Malas",
                                "Omitidas", "Nulas", "Puntaje", "Rendimiento", "Nota"};

BaseDatos& Base() {
    return *estado().BaseDatos;
}
int16_t Id() {
    return estado().Id_Prueba_Actual;
}

}  // namespace

Frm_Correccion::Frm_Correccion(QWidget* padre) : QWidget(padre) {
    setObjectName(QStringLiteral("Frm_Correccion"));
    setWindowTitle(QStringLiteral("Correccion de Alternativas"));
    Spr_Respuestas.FijaCelda(0, 1, QStringLiteral("Numero Pregunta"));
    Spr_Respuestas.FijaCelda(0, 2, QStringLiteral("Respuesta"));
    for (int c = 0; c < 10; ++c) SprEvaCorrec.FijaCelda(0, c + 1, QString::fromUtf8(kCabezas[c]));
    Construye();
    Ejecutar_Comando([this] { Form_Load(); });
}

void Frm_Correccion::Construye() {
    CboFormas = new QComboBox(this);
    TxtForma = new QLineEdit(this);
    TxtForma->setReadOnly(true);
    LblNombrePrueba = new QLabel(this);
    Lbl_Asignatura = new QLabel(this);
    Lbl_Ajuste_40 = new QLabel(this);
    Lst_Eliminadas = new QListWidget(this);
    XPButton1 = Boton(this, QStringLiteral("XPButton1"), QStringLiteral("Recorregir"),
                      [this] { Recorrige_Pruebas(); });
    XPButton2 = Boton(this, QStringLiteral("XPButton2"), QStringLiteral("Grabar"),
                      [this] { XPButton2_Click(); });
    auto* cancelar = Boton(this, QStringLiteral("XPButCancelar"), QStringLiteral("Cancelar"),
                           [this] { close(); });
    auto* datos = new QFormLayout;
    datos->addRow(QStringLiteral("Prueba:"), LblNombrePrueba);
    datos->addRow(QStringLiteral("Asignatura:"), Lbl_Asignatura);
    datos->addRow(QStringLiteral("Ajuste nota 4:"), Lbl_Ajuste_40);
    datos->addRow(QStringLiteral("Forma:"), CboFormas);
    datos->addRow(QStringLiteral("Forma en uso:"), TxtForma);
    datos->addRow(Lst_Eliminadas);
    datos->addRow(XPButton1);
    datos->addRow(XPButton2);
    datos->addRow(cancelar);
    auto* pauta = Vista_Lectura(Spr_Respuestas, this);
    auto* capa = new QHBoxLayout(this);
    capa->addWidget(pauta);
    capa->addWidget(Vista_Lectura(SprEvaCorrec, this), 1);
    capa->addLayout(datos);
    connect(pauta, &QTableView::doubleClicked, this, [this](const QModelIndex& i) {
        Ejecutar_Comando([&] { Spr_Respuestas_DblClick(i.row() + 1); });
    });
    connect(CboFormas, &QComboBox::activated, this,
            [this] { Ejecutar_Comando([this] { CboFormas_Click(); }); });
    resize(1100, 600);
}

void Frm_Correccion::Form_Load() {
    Lst_Eliminadas->clear();
    const Estado& e = estado();
    if (e.Id_Prueba_Actual == 0) {
        dialogos().MsgBox(QStringLiteral("No tiene número de prueba asociado, selecione una "
                                         "prueba para modificar"),
                          vbOKOnly, kTitulo);
        return;
    }
    XPButton1->setEnabled(false);
    XPButton2->setEnabled(false);
    LblNombrePrueba->setText(e.Nombre_Prueba_Actual);
    Lbl_Asignatura->setText(e.Asignatura_Actual);
    Lbl_Ajuste_40->setText(CStr(int(Fnc_Ajuste_Nota_40())) + QStringLiteral(" % "));
    CboFormas->setVisible(e.Numero_Formas_Actual > 1);
    if (e.Numero_Formas_Actual <= 1) return Carga_Forma(QStringLiteral("1"));
    for (int f = 1; f <= e.Numero_Formas_Actual; ++f) CboFormas->addItem(CStr(f));
    CboFormas->setCurrentIndex(-1);
}

void Frm_Correccion::CboFormas_Click() {
    Carga_Forma(CboFormas->currentText());
}

void Frm_Correccion::Carga_Forma(const QString& forma) {
    Spr_Respuestas.SetMaxRows(0);
    SprEvaCorrec.SetMaxRows(0);
    TxtForma->setText(forma);
    Carga_Grilla_Respuesta(forma);
    Carga_Alumnos_Pantalla(forma);
}

void Frm_Correccion::Carga_Grilla_Respuesta(const QString& forma) {
    Recordset rs = Base().OpenRecordset(
        QStringLiteral(" select pregunta,alternativa From resp_preguntas_pautas  Where idprueba = "
                       "? and forma = ? order by pregunta, alternativa"),
        {Id(), forma});
    Spr_Respuestas.SetMaxRows(rs.RecordCount());
    for (int f = 1; !rs.Eof(); rs.MoveNext(), ++f) {
        Spr_Respuestas.FijaCelda(f, 1, rs[0].toString());
        Spr_Respuestas.FijaCelda(f, 2, Letra_Pauta(rs[1]));
    }
}

void Frm_Correccion::Carga_Alumnos_Pantalla(const QString& forma) {
    Recordset rs = Base().OpenRecordset(
        QStringLiteral("select * from ResultadoAlumnos_rj where idprueba = ? and forma = ?"),
        {Id(), forma});
    SprEvaCorrec.SetMaxRows(rs.RecordCount());
    const char* const campos[] = {"IdPrueba", "Rut",   "",        "Buenas",     "Malas",
                                  "Omitidas", "Nulas", "Puntaje", "Porcentaje", "Nota"};
    for (int f = 1; !rs.Eof(); rs.MoveNext(), ++f) {
        for (int c = 0; c < 10; ++c)
            if (*campos[c]) SprEvaCorrec.FijaCelda(f, c + 1, rs[campos[c]].toString());
        SprEvaCorrec.FijaCelda(f, 3, Primer_Apellido(rs["Rut"].toString()));
    }
}

void Frm_Correccion::Spr_Respuestas_DblClick(int fila) {
    if (fila < 1 || fila > Spr_Respuestas.MaxRows()) return;
    if (estado().Modo_Correccion == QLatin1String("Modificacion"))
        return Modifica_Alternativa(fila);
    Elimina_Pregunta(fila);
}

void Frm_Correccion::Modifica_Alternativa(int fila) {
    const QString titulo = QStringLiteral("Modificación de Alternativas");
    const QString vieja = Spr_Respuestas.Celda(fila, 2);
    const QString texto = dialogos().InputBox(
        Lineas({vieja, QStringLiteral("Ingrese la alternativa correcta...")}), kTitulo, QString());
    if (texto.isEmpty()) {
        dialogos().MsgBox(QStringLiteral("El valor ingresado esta en blanco o no corresponde, "
                                         "verifique..."),
                          vbOKOnly, titulo);
        return;
    }
    const QString nueva = texto.left(1).toUpper();
    const int codigo = Codigo_Alumno(nueva);
    if (codigo < 1 || codigo > 5) {
        dialogos().MsgBox(QStringLiteral("El valor ingresado no corresponde, verifique"), vbOKOnly,
                          titulo);
        return;
    }
    const int alternativas = estado().Alternativas_Actual;
    if (codigo > alternativas) {
        dialogos().MsgBox(QStringLiteral("La alternativa ingresada No esta permitida en esta "
                                         "prueba de ") +
                              CStr(alternativas) + QStringLiteral(" alternativas"),
                          vbCritical, QStringLiteral("Modificación Alternativas"));
        return;
    }
    Lst_Eliminadas->addItem(QStringLiteral("Se Cambia Alternativa ") + CStr(fila) +
                            QStringLiteral(" : ") + vieja + QStringLiteral(" por ") + nueva);
    XPButton1->setEnabled(true);
    Spr_Respuestas.FijaCelda(fila, 2, nueva);
    Spr_Respuestas.SetBackColor(fila, 1, ColorAmarillo);
    Spr_Respuestas.SetBackColor(fila, 2, ColorAmarillo);
}

void Frm_Correccion::Elimina_Pregunta(int fila) {
    const QString numero = Spr_Respuestas.Celda(fila, 1);
    const QString letra = Spr_Respuestas.Celda(fila, 2);
    if (letra.toUpper() == QLatin1String("X")) {
        dialogos().MsgBox(
            QStringLiteral("Esta alternativa ha sido eliminada, ya no puede ser modificada"),
            vbCritical, QStringLiteral("modificación Alternativas"));
        return;
    }
    const int r = dialogos().MsgBox(
        Lineas({QStringLiteral("Desea eliminar la pregunta ..."),
                QStringLiteral("Pregunta : ") + numero, QStringLiteral("Alternativa : ") + letra}),
        vbOKCancel + vbQuestion, kTitulo);
    if (r != vbOK) return;
    Lst_Eliminadas->addItem(QStringLiteral("Pregunta : ") + numero + QStringLiteral("  --  ") +
                            QStringLiteral("Alternativa : ") + letra);
    Spr_Respuestas.FijaCelda(fila, 2, QStringLiteral("X"));
    XPButton1->setEnabled(true);
}

void Frm_Correccion::Recorrige_Pruebas() {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    struct Puntero {
        ~Puntero() { QApplication::restoreOverrideCursor(); }
    } puntero;
    XPButton2->setEnabled(true);
    QString nota;  // a student without a line of the table keeps the grade found before
    for (int f = 1; f <= SprEvaCorrec.MaxRows(); ++f) {
        Cuenta_Alumno(f);
        int eliminadas = 0;
        for (int j = 1; j <= Spr_Respuestas.MaxRows(); ++j)
            if (Spr_Respuestas.Celda(j, 2).toUpper() == QLatin1String("X")) ++eliminadas;
        // Deleting questions lowers the maximum points: the scale is rebuilt on fewer.
        estado().Ptje_Max_Actual = CInt(Spr_Respuestas.MaxRows() - eliminadas);
        Calcula_Notas_Tabla(Notas, VarianteEscala::Correccion);
        if (const auto n = Nota_De_Tabla(Notas, Val(SprEvaCorrec.Celda(f, 4)))) nota = *n;
        SprEvaCorrec.FijaCelda(f, 10, nota);
        Spr_Resp_Alumno.SetMaxRows(0);
    }
}

// The counts of one student against the key on the screen, row by row.
void Frm_Correccion::Cuenta_Alumno(int fila) {
    Recordset rs = Base().OpenRecordset(
        QStringLiteral(" select pregunta, alternativa from respuesta_alumnos_por_rut where "
                       "idprueba = ? and forma = ? and Rut_Alumno = ? order by pregunta"),
        {Id(), TxtForma->text(), SprEvaCorrec.Celda(fila, 2)});
    Spr_Resp_Alumno.SetMaxRows(rs.RecordCount());
    for (int j = 1; !rs.Eof(); rs.MoveNext(), ++j) {
        Spr_Resp_Alumno.FijaCelda(j, 1, rs[0].toString());
        Spr_Resp_Alumno.FijaCelda(j, 2, Letra_Alumno(rs[1]));
    }
    int buenas = 0, malas = 0, omitidas = 0, nulas = 0, validas = 0;
    for (int j = 1; j <= Spr_Respuestas.MaxRows(); ++j) {
        const QString clave = Spr_Respuestas.Celda(j, 2).toUpper();
        if (clave == QLatin1String("X")) continue;
        const QString letra = Spr_Resp_Alumno.Celda(j, 2);
        if (letra == clave)
            ++buenas;
        else if (letra == QLatin1String("O"))
            ++omitidas;
        else if (letra == QLatin1String("N"))
            ++nulas;
        else
            ++malas;
        ++validas;
    }
    const int cuentas[] = {buenas, malas, omitidas, nulas, buenas};
    for (int c = 0; c < 5; ++c) SprEvaCorrec.FijaCelda(fila, c + 4, CStr(cuentas[c]));
    if (validas == 0) throw ErrorEjecucion(QStringLiteral("División por cero"));
    SprEvaCorrec.FijaCelda(fila, 9, CStr(Round(buenas * 100.0 / validas, 0)));
}

void Frm_Correccion::XPButton2_Click() {
    Transaccion t(Base());
    Grabar_Nueva_Pauta();
    Grabar_Nuevas_Notas_Alumnos();
    t.Confirma();
    XPButton1->setEnabled(false);
    XPButton2->setEnabled(false);
    Lst_Eliminadas->clear();
    dialogos().MsgBox(QStringLiteral("El proceso de modificación  termino con exito..."), vbOKOnly,
                      kTitulo);
}

void Frm_Correccion::Grabar_Nueva_Pauta() {
    int16_t forma = 1;
    if (estado().Numero_Formas_Actual > 1) {
        forma = CInt(Val(CboFormas->currentText()));
        estado().Numero_Formas_Actual = forma;  // kept as the system does it
    }
    Base().Execute(
        QStringLiteral("DELETE FROM Resp_preguntas_pautas  WHERE IdPrueba = ? and forma = ?"),
        {Id(), forma});
    int codigo = 0;  // a cell of another letter repeats the code of the row before it
    for (int f = 1; f <= Spr_Respuestas.MaxRows(); ++f) {
        const QString letra = Spr_Respuestas.Celda(f, 2);
        if (letra == QLatin1String("X"))
            codigo = 9;
        else if (const int c = Codigo_Alumno(letra); c >= 1 && c <= 5)
            codigo = c;
        Base().Execute(QStringLiteral(" insert into Resp_preguntas_pautas values (?, ?, ?, ?)"),
                       {Id(), f, TxtForma->text(), codigo});
    }
}

void Frm_Correccion::Grabar_Nuevas_Notas_Alumnos() {
    const QString forma =
        CboFormas->currentText().isEmpty() ? QStringLiteral("1") : CboFormas->currentText();
    for (int f = 1; f <= SprEvaCorrec.MaxRows(); ++f) {
        const auto celda = [&](int c) { return Val(SprEvaCorrec.Celda(f, c)); };
        estado().Rut_Actual = SprEvaCorrec.Celda(f, 2);
        Base().Execute(QStringLiteral(" delete from ResultadoAlumnos_rj  where idprueba = ? and "
                                      "forma = ? and Rut = ?"),
                       {Id(), forma, estado().Rut_Actual});
        Base().Execute(QStringLiteral("insert into ResultadoAlumnos_rj (IdPrueba, Rut, Buenas, "
                                      "Malas, Omitidas, Nulas, Puntaje, Nota, Logro, Porcentaje, "
                                      "Forma) values (?, ?, ?, ?, ?, ?, 0, ?, 0, ?, ?)"),
                       {Id(), estado().Rut_Actual, celda(4), celda(5), celda(6), celda(7),
                        celda(10), celda(9), forma});
    }
}
