// The correction evaluation: loading, the scale try-out and the stored grades.
#include "grading/screens/frm_eva_correcion.h"

#include <QComboBox>
#include <QDate>
#include <QLabel>
#include <QLineEdit>

#include "app/estado.h"
#include "grading/enmienda_notas.h"
#include "grading/evaluacion_correccion.h"
#include "platform/base_datos.h"
#include "platform/dialogos.h"
#include "platform/error_ejecucion.h"
#include "platform/numeros.h"
#include "platform/screens/lista_clave.h"

namespace {

const QString kTitulo = QStringLiteral("Correccion de pruebas");
const QString kTituloEscala = QStringLiteral("Modificacion escala de Notas");

BaseDatos& Base() {
    return *estado().BaseDatos;
}
int16_t Id() {
    return estado().Id_Prueba_Actual;
}

// One value of the test's results; a Null gives "0".
QString Valor_Notas(const QString& funcion) {
    Recordset rs = Base().OpenRecordset(
        QStringLiteral("select %1(nota) from ResultadoAlumnos_rj where idprueba = ?").arg(funcion),
        {Id()});
    return rs[0].isNull() ? QStringLiteral("0") : CStr(rs[0].toDouble());
}

}  // namespace

FrmEvaCorrecion::FrmEvaCorrecion(QWidget* padre) : QWidget(padre) {
    setObjectName(QStringLiteral("FrmEvaCorrecion"));
    setWindowTitle(QStringLiteral("Correción General"));
    Cabezas_Evaluacion(SprEvaCorrec);
    Cabezas_Evaluacion(Spr_Pauta_Respuesta);
    Construye();
    Ejecutar_Comando([this] { Form_Load(); });
}

void FrmEvaCorrecion::Form_Load() {
    if (Id() == 0) {
        dialogos().MsgBox(QStringLiteral("UD. no tiene asociado a una prueba para esta carga, "
                                         "verifique sus datos"),
                          vbOKOnly, kTitulo);
        return;
    }
    Carga_Alumnos_Pantalla(SprEvaCorrec);
    if (SprEvaCorrec.MaxRows() == 1 && SprEvaCorrec.Celda(1, 2).isEmpty()) {
        dialogos().MsgBox(QStringLiteral("Esta prueba no tiene alumnos asignados"), vbOKOnly,
                          kTitulo);
        return;
    }
    LblMinima->setText(CStr(Round(Val(Valor_Notas(QStringLiteral("min"))), 2)));
    LblMaxima->setText(CStr(Round(Val(Valor_Notas(QStringLiteral("max"))), 2)));
    LblPromedio->setText(CStr(Round(Val(Valor_Notas(QStringLiteral("avg"))), 2)));
    LblFecha->setText(Fecha_Texto(QDate::currentDate()));
    const Estado& e = estado();
    LblPrueba->setText(e.Nombre_Prueba_Actual);
    LblCurso->setText(e.Curso_Actual);
    LblAsignatura->setText(e.Asignatura_Actual);
    LblProfesor->setText(e.Profesor_Actual);
    Spr_Pauta_Respuesta.SetMaxRows(0);
    Carga_Alumnos_desde_Grilla();
    Lbl_Desviacion->setText(CStr(Calculo_Desviacion(SprEvaCorrec, Val(LblPromedio->text()))));
    Txt_Minima_4->setText(QStringLiteral("0"));
    Txt_Maxima_7->setText(QStringLiteral("0"));
    Carga_Porcentajes();
}

void FrmEvaCorrecion::Carga_Alumnos_desde_Grilla() {
    CboAlumnos->clear();
    double suma = 0;
    for (int f = 1; f <= SprEvaCorrec.MaxRows(); ++f) suma += Val(SprEvaCorrec.Celda(f, 4));
    if (suma == 0) return;
    for (int f = 1; f <= SprEvaCorrec.MaxRows(); ++f)
        Agrega_Item(CboAlumnos, SprEvaCorrec.Celda(f, 3), SprEvaCorrec.Celda(f, 2));
    CboAlumnos->setCurrentIndex(-1);
}

void FrmEvaCorrecion::Carga_Porcentajes() {
    QString desde, hasta;
    if (!Lee_Porcentajes_Nota(desde, hasta)) return;
    XminText->setText(desde);
    XmaxText->setText(hasta);
    Txt_Minima_4->setText(desde);
    Txt_Maxima_7->setText(hasta);
}

void FrmEvaCorrecion::Graba_Porcentajes_Nota(int16_t desde, int16_t hasta) {
    const QString concepto = CStr(int(Id()));
    Recordset rs = Base().OpenRecordset(
        QStringLiteral("select desde, hasta from NivelesCalificacion where concepto = ?"),
        {concepto});
    if (!rs.Eof())
        Base().Execute(QStringLiteral(" update NivelesCalificacion set  desde = ?, hasta = ? "
                                      "where concepto = ?"),
                       {desde, hasta, concepto});
    else
        Base().Execute(QStringLiteral(" insert into NivelesCalificacion values(?, ?, ?)"),
                       {concepto, desde, hasta});
}

bool FrmEvaCorrecion::Tabla_Vacia() const {
    return SprEvaCorrec.MaxRows() <= 1 && SprEvaCorrec.Celda(1, 1).isEmpty();
}

void FrmEvaCorrecion::Recalcula_Nota(int16_t porcentaje) {
    Calcula_Notas_Tabla(Notas, VarianteEscala::Evaluacion, porcentaje);
}

// One step of a percentage; at its limit the field is set to it and the grades run all the same.
void FrmEvaCorrecion::Mueve_Porcentaje(QLineEdit* campo, int paso, int limite,
                                       const QString& mensaje) {
    if (Tabla_Vacia()) return;
    const int valor = CInt(Val(campo->text()));
    if (paso > 0 ? valor < limite : valor > limite) {
        campo->setText(CStr(valor + paso));
    } else {
        dialogos().MsgBox(mensaje, vbCritical, QStringLiteral("Porcentaje Minimo de Prueba"));
        campo->setText(CStr(limite));
    }
    const int16_t porcentaje = CInt(Val(campo->text()));
    if (campo == XminText) {
        Recalcula_Nota(porcentaje);
        Busca_y_Pone_Nuevas_Notas(SprEvaCorrec, Notas, estado().Preguntas_Actual);
    } else {
        Recalcula_Nota_100(SprEvaCorrec, porcentaje);
    }
    Muestra_Cifras();
}

void FrmEvaCorrecion::Muestra_Cifras() {
    const Cifras_Curso cifras = Cambia_Nota_Promedio(SprEvaCorrec);
    LblPromedio->setText(cifras.promedio);
    LblMinima->setText(cifras.minima);
    LblMaxima->setText(cifras.maxima);
}

void FrmEvaCorrecion::CmdArri4_Click() {
    Mueve_Porcentaje(XminText, 1, 80,
                     QStringLiteral("El porcentaje minimo no puede superar el 80 %"));
}

void FrmEvaCorrecion::CmdAbajo1_Click() {
    Mueve_Porcentaje(XminText, -1, 40,
                     QStringLiteral("El porcentaje minimo no puede superar el 40 %"));
}

void FrmEvaCorrecion::CmdArri6_Click() {
    Mueve_Porcentaje(XmaxText, 1, 100,
                     QStringLiteral("El porcentaje maximo no puede superar el 100 %"));
}

void FrmEvaCorrecion::CmdAbajo2_Click() {
    Mueve_Porcentaje(XmaxText, -1, 85,
                     QStringLiteral("El porcentaje minimo no puede superar el 85 %"));
}

// The stored grade is column 10, and only rows of the form numbered as the test's form count.
void FrmEvaCorrecion::CmdGrabaNuevaNota_Click() {
    const QString texto =
        QStringLiteral("Esta seguro de grabar las nuevas notas para la prueba : ") +
        QLatin1Char('\r') + QStringLiteral("Numero Prueba : ") + CStr(int(Id())) +
        QStringLiteral(" Nombre Prueba : ") + estado().Nombre_Prueba_Actual;
    if (dialogos().MsgBox(texto, vbOKCancel + vbInformation, kTituloEscala) != vbOK) return;
    Transaccion t(Base());
    for (int f = 1; f <= SprEvaCorrec.MaxRows() && !SprEvaCorrec.Celda(f, 2).isEmpty(); ++f) {
        const float nota = CSng(Val(SprEvaCorrec.Celda(f, 10)));
        Base().Execute(
            QStringLiteral("update ResultadoAlumnos_rj set  nota = ? where idprueba = ? "
                           "and forma = ? and rut = ?"),
            {Val(CStr(nota)), Id(), estado().Numero_Formas_Actual, SprEvaCorrec.Celda(f, 2)});
    }
    Graba_Porcentajes_Nota(CInt(Val(XminText->text())), CInt(Val(XmaxText->text())));
    t.Confirma();
    Txt_Minima_4->setText(XminText->text());
    Txt_Maxima_7->setText(XmaxText->text());
    dialogos().MsgBox(QStringLiteral("La notas han sido modificadas"), vbOKOnly, kTituloEscala);
}

void FrmEvaCorrecion::XPButton4_Click() {
    const int f = Fila_Activa;
    if (f < 1 || f > SprEvaCorrec.MaxRows() || Tabla_Vacia()) return;
    const QString rut = SprEvaCorrec.Celda(f, 2);
    const int r = dialogos().MsgBox(Lineas({QStringLiteral("Esta seguro de Eliminar al Alumno"),
                                            QStringLiteral(" Nombre : ") + SprEvaCorrec.Celda(f, 3),
                                            QStringLiteral(" y Rut : ") + rut}),
                                    vbOKCancel + vbQuestion, QStringLiteral("Evaluacion Alumnos"));
    if (r != vbOK) return;
    Elimina_Alumno_Prueba(rut, SprEvaCorrec.Celda(f, 10));  // the form column as it stands
    SprEvaCorrec.Limpia();
    Carga_Alumnos_Pantalla(SprEvaCorrec);
    Carga_Alumnos_desde_Grilla();
}
