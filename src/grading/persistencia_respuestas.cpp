// Storing sheets and keys.
#include "grading/persistencia_respuestas.h"

#include "app/estado.h"
#include "grading/corrector.h"
#include "platform/base_datos.h"
#include "platform/dialogos.h"
#include "platform/numeros.h"

namespace {

BaseDatos& Base() { return *estado().BaseDatos; }
int16_t Id() { return estado().Id_Prueba_Actual; }
int Forma(const Corrector& c) { return CInt(Val(c.TxtForma)); }

bool Hay_Filas(const QString& sql, const QVariantList& p) { return !Base().OpenRecordset(sql, p).Eof(); }

// A key for this test number already exists while no test is current.
bool Codigo_Ya_Existe() {
    if (Id() != 0 ||
        !Hay_Filas(QStringLiteral("select idprueba from Resp_preguntas_pautas where idprueba = ?"), {Id()}))
        return false;
    dialogos().MsgBox(QStringLiteral("Esto código de prueba ya existe, verifique sus datos"), vbCritical,
                      QStringLiteral("Creación de Pautas y Pruebas"));
    return true;
}

// Codes of the table's letters; a cell with another text repeats the code before it.
std::vector<int> Codigos(const Grilla& g, int (*codigo)(const QString&)) {
    std::vector<int> codigos;
    int actual = 0;
    for (int i = 1; i <= g.MaxRows(); ++i) {
        if (const int c = codigo(g.Celda(i, 2)); c != 0) actual = c;
        codigos.push_back(actual);
    }
    return codigos;
}

int Codigo(const QString& letra, int o, int n) {
    static const QString letras = QStringLiteral("ABCDE");
    if (letra.size() == 1 && letras.contains(letra)) return letras.indexOf(letra) + 1;
    if (letra == QLatin1String("O")) return o;
    if (letra == QLatin1String("N")) return n;
    return 0;
}

const QString kBorraRespuestas = QStringLiteral(
    "delete from respuesta_alumnos_por_rut where idprueba = ? and rut_alumno = ? and forma  = ?");
const QString kBorraResultado =
    QStringLiteral("delete from ResultadoAlumnos_rj where idprueba = ? and rut = ? and forma  = ?");

}  // namespace

int Codigo_Alumno(const QString& letra) { return Codigo(letra, 6, 7); }
int Codigo_Pauta(const QString& letra) { return Codigo(letra, 7, 6); }

void Graba_Prueba_Alumnos(Corrector& c) {
    c.Rut_No_Reemplazado = false;
    const QString buscar = QStringLiteral(
        "select * from respuesta_alumnos_por_rut where idprueba = ? and rut_alumno = ? and forma  = ?");
    const bool propias = Hay_Filas(buscar, {Id(), c.TxtRut, Forma(c)});
    // A sheet read again with a good form silently replaces the student's unreadable one.
    if (!propias && Hay_Filas(buscar, {Id(), c.TxtRut, 99})) Base().Execute(kBorraRespuestas, {Id(), c.TxtRut, 99});
    if (propias) {
        const int r = dialogos().MsgBox(
            QStringLiteral("El rut ") + c.TxtRut + QStringLiteral(" ya existe en la Base de Datos, desea reemplazarlo"),
            vbOKCancel + vbExclamation, QStringLiteral("Corrección de Pruebas"));
        if (r != vbOK) {
            c.Rut_No_Reemplazado = true;
            c.Cant_No_Reemplazados = CInt(c.Cant_No_Reemplazados + 1);
            return;
        }
        Base().Execute(kBorraRespuestas, {Id(), c.TxtRut, Forma(c)});
        Base().Execute(kBorraResultado, {Id(), c.TxtRut, Forma(c)});
    }
    if (Codigo_Ya_Existe()) return;
    if (c.TxtRut == QLatin1String("Text2") || c.TxtRut == QLatin1String("TxtRut")) return;
    const QVariant forma = Forma(c) == 99 ? QVariant(99) : QVariant(c.TxtForma);
    const std::vector<int> codigos = Codigos(c.SprRespuesta_Correctas, Codigo_Alumno);
    for (size_t i = 0; i < codigos.size(); ++i)
        Base().Execute(QStringLiteral("insert into respuesta_alumnos_por_rut values (?, ?, ?, ?, ?)"),
                       {Id(), int(i + 1), forma, codigos[i], c.TxtRut});
}

void Elimina_Prueba_Cargada(const Corrector& c) {
    Base().Execute(kBorraRespuestas, {Id(), c.TxtRut, Forma(c)});
    Base().Execute(kBorraResultado, {Id(), c.TxtRut, Forma(c)});
}

void Graba_Prueba_Base_Pauta(Corrector& c) {
    if (Codigo_Ya_Existe()) {
        c.Pauta_Rechazada = true;
        return;
    }
    if (!Hay_Filas(QStringLiteral("select idprueba from Resp_preguntas_pautas where idprueba = ? and forma = ?"),
                   {Id(), Forma(c)})) {
        const std::vector<int> codigos = Codigos(c.SprRespuesta_Correctas, Codigo_Pauta);
        for (size_t i = 0; i < codigos.size(); ++i)
            Base().Execute(QStringLiteral("insert into Resp_preguntas_pautas values (?, ?, ?, ?)"),
                           {Id(), int(i + 1), c.TxtForma, codigos[i]});
        return;
    }
    dialogos().MsgBox(Lineas({QStringLiteral("Esta Pauta de prueba ya existe."),
                              QStringLiteral("Por lo tanto se eliminaran las pautas anteriores "),
                              QStringLiteral("favor generar de nuevo la prueba y escanear nuevamente la pauta "),
                              QString(), QStringLiteral("                    VERIFIQUE LAS FILAS DE SUS PAUTA")}),
                      vbCritical, QStringLiteral("ERROR GRAVE....Creación de pautas"));
    Base().Execute(QStringLiteral("DELETE FROM Resp_preguntas_pautas WHERE IdPrueba = ?"), {Id()});
    c.Pauta_Rechazada = true;
}

void Eliminar_Pautas_Anteriores_Existentes() {
    Base().Execute(QStringLiteral(" delete FROM Resp_preguntas_pautas  Where IDPRUEBA = ?"), {Id()});
}

void Cambia_Estado_Pauta() {
    Recordset rs =
        Base().OpenRecordset(QStringLiteral(" select ingreso_pauta  from prueba_rj where idprueba = ?"), {Id()});
    if (!rs.Eof() && rs[0].toString() == QLatin1String("N"))
        Base().Execute(QStringLiteral(" Update prueba_rj set  ingreso_pauta  = 'S' where idprueba = ?"), {Id()});
}

void Varifica_Pauta_Grabada(Corrector& c) {
    c.Total_Nulas = 0;
    for (int i = 1; i <= estado().Preguntas_Actual; ++i) {
        const QString letra = c.SprRespuesta_Correctas.Celda(i, 2);
        const QString linea = QStringLiteral("\rPregunta Nª ") + CStr(i);
        if (letra == QLatin1String("O")) {
            c.Preguntas_Omitidas += linea;
            c.Total_Omitidas = CInt(c.Total_Omitidas + 1);
        } else if (letra == QLatin1String("N")) {
            c.Preguntas_Nulas += linea;
            c.Total_Nulas = CInt(c.Total_Nulas + 1);
        }
    }
}
