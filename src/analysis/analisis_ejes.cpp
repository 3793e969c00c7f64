// The skills and axes analysis: the fills from the store, the walk of the questions by axis and
// the tables it gives for the course and for each student.
#include "analysis/analisis_ejes.h"

#include <functional>
#include <map>

#include "analysis/analisis_pregunta.h"
#include "app/estado.h"
#include "platform/base_datos.h"
#include "platform/error_ejecucion.h"
#include "platform/grilla.h"
#include "platform/numeros.h"

namespace {

struct Cuentas {
    int buenas = 0, malas = 0, omitidas = 0;
};

// The answers of the current test that match `filtro` (a form or a student), by question.
using Respuestas = std::map<int, std::vector<int>>;

// Read once for the whole walk: the counts below are those of the three count statements of
// each question (right, omitted, wrong), without a statement per question.
Respuestas Lee_Respuestas(const QString& filtro, const QVariant& valor) {
    Respuestas r;
    Recordset rs = estado().BaseDatos->OpenRecordset(
        QStringLiteral("select pregunta, alternativa from respuesta_alumnos_por_rut where "
                       "idprueba = ? and ") +
            filtro,
        {estado().Id_Prueba_Actual, valor});
    for (; !rs.Eof(); rs.MoveNext())
        if (!rs[0].isNull() && !rs[1].isNull()) r[rs[0].toInt()].push_back(rs[1].toInt());
    return r;
}

// A question whose right alternative is 6 counts a 6 as right and as omitted alike.
void Suma_Pregunta(Cuentas& c, const Respuestas& respuestas, int pregunta, int correcta) {
    const auto it = respuestas.find(pregunta);
    if (it == respuestas.end()) return;
    for (const int a : it->second) {
        c.buenas += a == correcta;
        c.omitidas += a == kOmitida;
        c.malas += a != kOmitida && a != correcta;
    }
}

using Cierre = std::function<void(const QString& previo, const Cuentas&, bool ultimo)>;

// Walks SprObjetivos in order, closing a group each time the axis changes and after the last
// row. The right alternative of question p is row p of SprRespuestas, by position.
void Recorre_Ejes(const Grilla& respuestas, const Grilla& objetivos, bool mayusculas,
                  const QString& filtro, const QVariant& valor, const Cierre& cierra) {
    const Respuestas todas = Lee_Respuestas(filtro, valor);
    Cuentas c;
    QString previo;
    for (int r = 1; r <= objetivos.MaxRows(); ++r) {
        const int p = CInt(Val(objetivos.Celda(r, 1)));
        const QString eje = objetivos.Celda(r, 2).trimmed();
        const int correcta = CInt(Val(respuestas.Celda(p, 2)));
        if (r == 1) {
            previo = eje;
        } else if ((mayusculas ? eje.toUpper() : eje) != (mayusculas ? previo.toUpper() : previo)) {
            cierra(previo, c, false);
            c = {};
            previo = eje;
        }
        Suma_Pregunta(c, todas, p, correcta);
    }
    if (objetivos.MaxRows() > 0) cierra(previo, c, true);
}

QString Cuenta_Texto(int cuenta) {
    return cuenta != 0 ? CStr(cuenta) : QStringLiteral("0");
}

QString Porcentaje(int cuenta, int total, int decimales) {
    if (cuenta == 0) return QStringLiteral("0%");
    return CStr(Round(cuenta * 100.0 / total, decimales)) + QStringLiteral("%");
}

// The course's group goes to the first row named like it, else to the last row.
void Cierra_Curso(Grilla& sup, const QString& previo, const Cuentas& c) {
    const int total = CInt(c.buenas + c.malas + c.omitidas);
    int fila = sup.MaxRows();
    for (int r = 1; r <= sup.MaxRows(); ++r)
        if (sup.Celda(r, 0).trimmed().toUpper() == previo.trimmed().toUpper()) {
            fila = r;
            break;
        }
    const QStringList valores = {Cuenta_Texto(c.buenas),        Porcentaje(c.buenas, total, 2),
                                 Cuenta_Texto(c.malas),         Porcentaje(c.malas, total, 2),
                                 Cuenta_Texto(c.omitidas),      Porcentaje(c.omitidas, total, 2),
                                 Porcentaje(c.buenas, total, 0)};
    for (int k = 0; k < valores.size(); ++k) sup.FijaCelda(fila, k + 1, valores[k]);
}

// One student group at offset `o` of row `fp` of SprPantalla and row `fs` of SprSoloSep.
void Cierra_Alumno(const NivelesLogro& n, Grilla& pantalla, int fp, Grilla* solo, int fs, int o,
                   const Cuentas& c, bool ultimo) {
    const int t = CInt(c.buenas + c.malas + c.omitidas);
    const double r = t == 0 ? 0 : Round(c.buenas * 100.0 / t, 0);
    const QStringList cuentas = {CStr(c.buenas), CStr(c.malas), CStr(c.omitidas)};
    for (int k = 0; k < 3; ++k) pantalla.FijaCelda(fp, o + 1 + k, cuentas[k]);
    pantalla.FijaCelda(fp, o + 4, CStr(r));
    pantalla.FijaCelda(fp, o + 5, Logro(n, t, r, ultimo));
    if (!solo) return;
    for (int k = 0; k < 3; ++k) solo->FijaCelda(fs, o + 2 + k, cuentas[k]);
    if (t == 0) throw ErrorEjecucion(QStringLiteral("División por cero"));
    solo->FijaCelda(fs, o + 5, CStr(Round(c.buenas * 100.0 / t, 0)));
    solo->FijaCelda(fs, o + 6, Nivel_Sep(n, t, r, ultimo));
}

void Vacia(Grilla& g) {
    g.SetMaxRows(0);
    g.SetMaxRows(1);
}

void Llena_Nombres(Grilla& sup, const QString& sql, const QVariantList& parametros) {
    sup.SetMaxRows(0);
    Recordset rs = estado().BaseDatos->OpenRecordset(sql, parametros);
    for (; !rs.Eof(); rs.MoveNext()) {
        sup.SetMaxRows(sup.MaxRows() + 1);
        sup.FijaCelda(sup.MaxRows(), 0, rs[0].toString());
    }
}

}  // namespace

void NivelesLogro::Fija(const QString& codigo, double desde, double hasta) {
    rangos_[codigo] = {desde, CInt(hasta)};
}

RangoNivel NivelesLogro::operator[](const QString& codigo) const {
    const auto r = rangos_.find(codigo);
    return r == rangos_.end() ? RangoNivel{} : r->second;
}

NivelesLogro Lee_Niveles() {
    static const QStringList codigos = {"L", "PL", "NL", "NB", "NMB", "NMA", "NA", "D", "ND", "PD"};
    NivelesLogro n;
    Recordset rs = estado().BaseDatos->OpenRecordset(
        QStringLiteral("select concepto,desde, hasta from NivelesCalificacion"));
    for (; !rs.Eof(); rs.MoveNext())
        if (codigos.contains(rs[0].toString()))
            n.Fija(rs[0].toString(), rs[1].toDouble(), rs[2].toDouble());
    return n;
}

bool Modo_Habilidades() {
    return estado().Tipo_Analisis != QLatin1String("EJE TEMATICO");
}

QString Titulo_Analisis() {
    return Modo_Habilidades() ? QStringLiteral("Analisis Habilidades")
                              : QStringLiteral("Analisis Ejes Tematicos");
}

// Ties of one question keep the order of the forms.
void Carga_Respuesta_Prueba(Grilla& SprRespuestas) {
    SprRespuestas.SetMaxRows(0);
    Recordset rs = estado().BaseDatos->OpenRecordset(
        QStringLiteral("  select pregunta, alternativa From resp_preguntas_pautas Where idprueba "
                       "= ? and forma in (1,2,3,4) order by pregunta, forma"),
        {estado().Id_Prueba_Actual});
    for (int fila = 1; !rs.Eof(); rs.MoveNext(), ++fila) {
        SprRespuestas.SetMaxRows(fila);
        SprRespuestas.FijaCelda(fila, 1, rs[0].toString());
        SprRespuestas.FijaCelda(fila, 2, rs[1].toString());
    }
}

// Names sort as the axis names do, so that the student groups pair with the course rows;
// names that differ only by case sort together and close one course group.
void Objetivos_Prueba(Grilla& SprObjetivos) {
    const QString eje =
        Modo_Habilidades() ? QStringLiteral("eje_objetivo") : QStringLiteral("eje_tematico");
    SprObjetivos.SetMaxRows(0);
    Recordset rs = estado().BaseDatos->OpenRecordset(
        QStringLiteral("  select numero_pregunta , %1 , correlativo from NEW_EJE_TEMATICO Where "
                       "idprueba = ? and tipo_prueba = ? group by numero_pregunta, %1,correlativo "
                       "order by %1 collate ESPANOL")
            .arg(eje),
        {estado().Id_Prueba_Actual, estado().Tipo_Prueba_Actual});
    for (int fila = 1; !rs.Eof(); rs.MoveNext(), ++fila) {
        SprObjetivos.SetMaxRows(fila);
        SprObjetivos.FijaCelda(fila, 1, rs[0].toString());
        SprObjetivos.FijaCelda(fila, 2, rs[1].toString());
    }
}

void Lee_Habilidades(Grilla& SprSuperior) {
    Llena_Nombres(
        SprSuperior,
        QStringLiteral("  select distinct eje  From ejes where tipoprueba = ? group by eje "
                       "order by eje collate ESPANOL"),
        {estado().Tipo_Prueba_Actual});
}

void Lee_Objetivos(Grilla& SprSuperior) {
    Llena_Nombres(
        SprSuperior,
        QStringLiteral("  select concepto From objetivos order by concepto collate ESPANOL"), {});
}

void Lee_Nombres_Por_Modo(Grilla& SprSuperior) {
    Modo_Habilidades() ? Lee_Objetivos(SprSuperior) : Lee_Habilidades(SprSuperior);
}

void Pareo_Objetivos_Preguntas(const Grilla& SprRespuestas, const Grilla& SprObjetivos,
                               const QString& forma, Grilla& SprSuperior) {
    Recorre_Ejes(SprRespuestas, SprObjetivos, true, QStringLiteral("forma = ?"), CInt(Val(forma)),
                 [&](const QString& previo, const Cuentas& c, bool) {
                     Cierra_Curso(SprSuperior, previo, c);
                 });
    // Axes without questions in this test vanish.
    for (int r = 1; r <= SprSuperior.MaxRows();) {
        if (!SprSuperior.Celda(r, 1).isEmpty()) {
            ++r;
            continue;
        }
        SprSuperior.DeleteRows(r, 1);
        SprSuperior.SetMaxRows(SprSuperior.MaxRows() - 1);
        r = 1;
    }
}

QString Logro(const NivelesLogro& n, int t, double r, bool ultimo) {
    if (t == 0) return QStringLiteral("INICIAL");
    if (n["L"].Contiene(r)) return QStringLiteral("AVANZADO");
    if (n["PL"].Contiene(r)) return QStringLiteral("INTERMEDIO");
    // Only the last group of a student tests the lower bound of "NL".
    const bool no_logrado = ultimo ? n["NL"].Contiene(r) : (r >= 0 && r <= n["NL"].hasta);
    return no_logrado ? QStringLiteral("INICIAL") : QString();
}

QString Nivel_Sep(const NivelesLogro& n, int t, double r, bool ultimo) {
    if (t <= 0) return QStringLiteral("PD");
    if (ultimo) {
        // The last axis of a student is judged by the exact lower bounds of "NB" and "PL".
        if (r == n["NB"].desde) return QStringLiteral("ND");
        if (r == n["PL"].desde) return QStringLiteral("D");
        return QStringLiteral("PD");
    }
    if (n["ND"].Contiene(r)) return QStringLiteral("ND");
    if (n["D"].Contiene(r)) return QStringLiteral("D");
    return QStringLiteral("PD");
}

QStringList Cabecera_Ejes(const Grilla& SprSuperior, int grupos) {
    QStringList cabecera;
    for (int c = 0; c <= 5 * grupos + 1; ++c) cabecera << QString();
    for (int k = 1; k <= grupos; ++k) {
        const int g = std::min(k, 20);
        for (int c = 5 * g - 3; c <= 5 * g + 1; ++c) cabecera[c] = SprSuperior.Celda(k, 0);
    }
    return cabecera;
}

void Setea_Grilla_Pantalla(int grupos, Grilla& SprPantalla) {
    static const QStringList etiquetas = {"Buenas", "Malas", "Omitidas", "Rendimiento", "Logro"};
    SprPantalla.SetMaxCols(5 * grupos + 1);
    SprPantalla.FijaCelda(0, 1, QStringLiteral("Forma"));
    for (int k = 1; k <= grupos; ++k)
        for (int e = 0; e < etiquetas.size(); ++e)
            SprPantalla.FijaCelda(0, 5 * k - 3 + e, etiquetas[e]);
}

int Grupos_Alumno(const Grilla& SprObjetivos) {
    int grupos = SprObjetivos.MaxRows() > 0 ? 1 : 0;
    for (int r = 2; r <= SprObjetivos.MaxRows(); ++r)
        if (SprObjetivos.Celda(r, 2).trimmed() != SprObjetivos.Celda(r - 1, 2).trimmed()) ++grupos;
    return grupos;
}

QString Fnc_Carga_Forma_Prueba(const QString& rut) {
    Recordset rs = estado().BaseDatos->OpenRecordset(
        QStringLiteral(" select forma from respuesta_alumnos_por_rut where idprueba = ? and "
                       "rut_alumno = ?"),
        {estado().Id_Prueba_Actual, rut});
    return rs.Eof() ? QString() : rs[0].toString();
}

void Agrega_Alummnos(const Grilla& SprRespuestas, const Grilla& SprObjetivos,
                     const NivelesLogro& niveles, Grilla& SprPantalla, Grilla* SprSoloSep,
                     Grilla* SprSep) {
    Vacia(SprPantalla);
    if (SprSep) Vacia(*SprSep);
    if (SprSoloSep) {
        Vacia(*SprSoloSep);
        const int columnas = 5 * Grupos_Alumno(SprObjetivos) + 2;
        SprSoloSep->SetMaxCols(std::max(SprSoloSep->MaxCols(), columnas));
    }
    Recordset rs = estado().BaseDatos->OpenRecordset(
        QStringLiteral(" select DISTINCT b.PRIMERAPELLIDO, RUT from respuesta_alumnos_por_rut A, "
                       "alumnos B where idprueba = ? and forma in( 1,2,3,4)  and a.rut_alumno = "
                       "b.rut  order by  b.PRIMERAPELLIDO collate ESPANOL"),
        {estado().Id_Prueba_Actual});
    SprPantalla.FijaCelda(0, 0, QStringLiteral("ALUMNOS"));
    for (; !rs.Eof(); rs.MoveNext()) {
        const int fp = SprPantalla.MaxRows();
        const int fs = SprSoloSep ? SprSoloSep->MaxRows() : 0;
        const QString rut = rs[1].toString();
        SprPantalla.FijaCelda(fp, 0, rs[0].toString());
        if (SprSoloSep) SprSoloSep->FijaCelda(fs, 1, rs[0].toString());
        int o = 1;
        // Here the axis is compared as it stands: names that differ by case are two groups.
        Recorre_Ejes(SprRespuestas, SprObjetivos, false, QStringLiteral("rut_alumno = ?"), rut,
                     [&](const QString&, const Cuentas& c, bool ultimo) {
                         Cierra_Alumno(niveles, SprPantalla, fp, SprSoloSep, fs, o, c, ultimo);
                         o += 5;
                     });
        if (SprSoloSep) SprSoloSep->SetMaxRows(fs + 1);
        SprPantalla.FijaCelda(fp, 1, Fnc_Carga_Forma_Prueba(rut));
        SprPantalla.SetBackColor(fp, 1, ColorAmarillo);
        SprPantalla.SetMaxRows(fp + 1);
    }
    SprPantalla.SetMaxRows(SprPantalla.MaxRows() - 1);
}

void Carga_Nueva_Grilla_Sep(const Grilla& SprSuperior, const Grilla& SprPantalla,
                            const NivelesLogro& niveles, Grilla& SprSep, bool sin_alumnos_termina) {
    static const QStringList codigos = {"NB", "NMB", "NMA", "NA"};
    Vacia(SprSep);
    if (sin_alumnos_termina && SprPantalla.MaxRows() == 0) return;
    int o = 0;
    for (int a = 1; a <= SprSuperior.MaxRows(); ++a, o += 5) {
        int cuentas[4] = {};
        for (int fila = 1; fila <= SprPantalla.MaxRows(); ++fila) {
            const double v = Val(SprPantalla.Celda(fila, o + 5));
            for (int k = 0; k < 4; ++k)
                if (niveles[codigos[k]].Contiene(v)) {
                    ++cuentas[k];
                    break;
                }
        }
        const int t = cuentas[0] + cuentas[1] + cuentas[2] + cuentas[3];
        const int fila = SprSep.MaxRows();
        SprSep.FijaCelda(fila, 1, SprSuperior.Celda(a, 0));
        for (int k = 0; k < 4; ++k) {
            if (t == 0) throw ErrorEjecucion(QStringLiteral("División por cero"));
            SprSep.FijaCelda(fila, 2 * k + 2, CStr(cuentas[k]));
            SprSep.FijaCelda(fila, 2 * k + 3, CStr(Round(cuentas[k] * 100.0 / t, 0)));
        }
        SprSep.SetMaxRows(fila + 1);
    }
}

std::vector<std::vector<double>> Datos_Grafico_Ejes(const Grilla& SprSuperior) {
    std::vector<std::vector<double>> datos;
    for (int r = 1; r <= SprSuperior.MaxRows(); ++r) {
        std::vector<double> fila;
        for (int c : {2, 4, 6, 7})
            fila.push_back(CSng(Val(SprSuperior.Celda(r, c).remove(QLatin1Char('%')))));
        datos.push_back(fila);
    }
    return datos;
}
