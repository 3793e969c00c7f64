// The tables of the store and the contents of a first store.
#include "store/esquema.h"

#include <QDate>
#include <functional>
#include <utility>
#include <vector>

#include "platform/base_datos.h"
#include "platform/error_ejecucion.h"

namespace {

// Names and column lists in the order positional statements use. `Nota` is REAL so that
// min, max and avg treat it as a number; every rut is TEXT.
const std::vector<std::pair<QString, QString>>& Tablas() {
    static const std::vector<std::pair<QString, QString>> tablas = {
        {"prueba_rj",
         "IdPrueba INTEGER PRIMARY KEY, NombrePrueba TEXT, TipoPrueba TEXT, NombreProfesor TEXT, "
         "Asignatura TEXT, curso TEXT, Numero_Forma INTEGER, Fecha TEXT, Pregunta_Seleccion "
         "INTEGER, "
         "puntaje_base INTEGER, Numero_Alternativas INTEGER, ingreso_pauta TEXT, formas INTEGER"},
        {"Resp_preguntas_pautas",
         "IdPrueba INTEGER, pregunta INTEGER, Forma INTEGER, Alternativa INTEGER"},
        {"respuesta_alumnos_por_rut",
         "IdPrueba INTEGER, pregunta INTEGER, Forma INTEGER, Alternativa INTEGER, RUT_Alumno TEXT"},
        {"ResultadoAlumnos_rj",
         "IdPrueba INTEGER, Rut TEXT, Buenas INTEGER, Malas INTEGER, Omitidas INTEGER, Nulas "
         "INTEGER, "
         "Puntaje INTEGER, Nota REAL, Logro INTEGER, Porcentaje INTEGER, Forma INTEGER"},
        {"ALUMNOS", "Rut TEXT PRIMARY KEY, PRIMERAPELLIDO TEXT, curso TEXT, adicional TEXT"},
        {"CURSOS", "curso TEXT, idnivel INTEGER, idcurso INTEGER"},
        {"Niveles", "idniveles INTEGER PRIMARY KEY, nivel TEXT"},
        {"Profesores", "NombreProfesor TEXT, rut TEXT"},
        {"Asignaturas", "idasignatura INTEGER PRIMARY KEY, Asignatura TEXT"},
        {"ejes", "IdEje INTEGER PRIMARY KEY, eje TEXT, TipoEnsayo TEXT, TipoPrueba TEXT"},
        {"objetivos",
         "idobjetivo INTEGER PRIMARY KEY, concepto TEXT, descripcion TEXT, estado TEXT"},
        {"indice_general", "tipo_indice TEXT PRIMARY KEY, valor_indice INTEGER"},
        {"NivelesCalificacion", "concepto TEXT, desde REAL, hasta REAL"},
        {"Puntaje_SIMCE", "puntaje_minimo INTEGER, puntaje_maximo INTEGER"},
        {"puntajes_psu", "codigo_tema INTEGER, puntaje_min INTEGER, puntaje_max INTEGER"},
        {"EjesPSU", "IdEje INTEGER, eje TEXT"},
        // The three tables an older store may lack; their statements keep their old words.
        {"NEW_EJE_TEMATICO",
         "CORRELATIVO integer CONSTRAINT MyFieldConstraint PRIMARY KEY , IDPRUEBA    integer , "
         "NUMERO_PREGUNTA integer , EJE_TEMATICO char, EJE_OBJETIVO char , FORMA INTEGER , "
         "TIPO_PRUEBA char"},
        {"Puntajes_PSU_NEW",
         "id_psu integer CONSTRAINT MyFieldConstraint PRIMARY KEY , nombre_psu char , tipo_prueba "
         "char ,numero_preguntas integer, elimina_buenas char , numero_elimina_malas INTEGER , "
         "puntaje_min integer, puntaje_max integer"},
        // SQLite wants the table constraint after the columns; the column order is kept.
        {"Puntajes_PSU_DINAMICO",
         "id_psu integer , numero_pregunta integer, nombre_psu char , puntaje_obtenido integer , "
         "CONSTRAINT PK_MB_AUTOR_idMatBiblio_idAutor PRIMARY KEY(id_psu,numero_pregunta)"},
    };
    return tablas;
}

// Tables an older store may lack (brought in by the migration) or may never have had (the
// old ones, only read or emptied): every other table must be there for a file to be a store.
bool Puede_Faltar(const QString& tabla) {
    static const QStringList kOpcionales = {"puntajes_psu", "EjesPSU", "NEW_EJE_TEMATICO",
                                            "Puntajes_PSU_NEW", "Puntajes_PSU_DINAMICO"};
    return kOpcionales.contains(tabla, Qt::CaseInsensitive);
}

// Indexes for the screens that look a test or a student up.
const char* const kIndices[] = {
    "CREATE INDEX IF NOT EXISTS ix_pautas ON Resp_preguntas_pautas (IdPrueba, Forma, pregunta)",
    "CREATE INDEX IF NOT EXISTS ix_respuestas ON respuesta_alumnos_por_rut "
    "(IdPrueba, RUT_Alumno, pregunta)",
    "CREATE INDEX IF NOT EXISTS ix_resultados ON ResultadoAlumnos_rj (IdPrueba, Rut)",
    "CREATE INDEX IF NOT EXISTS ix_alumnos_curso ON ALUMNOS (curso)",
    "CREATE INDEX IF NOT EXISTS ix_niveles_concepto ON NivelesCalificacion (concepto)",
};

// Chilean course levels, from pre-school to the last year of secondary school.
const char* const kNiveles[] = {"Pre-Kínder", "Kínder",    "1° Básico", "2° Básico", "3° Básico",
                                "4° Básico",  "5° Básico", "6° Básico", "7° Básico", "8° Básico",
                                "1° Medio",   "2° Medio",  "3° Medio",  "4° Medio"};

void Llena_Base_Nueva(BaseDatos& base) {
    const QString indice = QStringLiteral("insert into indice_general values (?, ?)");
    base.Execute(indice, {QStringLiteral("PRUEBA"), 0});
    base.Execute(indice, {QStringLiteral("CURSO"), 0});
    base.Execute(indice, {QStringLiteral("COLOR"), 180});

    // Minimum grade 1.0; achievement on a 60 % scale; four levels for the SEP reports.
    const QString nivel = QStringLiteral("insert into NivelesCalificacion values (?, ?, ?)");
    const std::vector<std::tuple<QString, double, double>> umbrales = {
        {"NM", 1, 0},  {"L", 80, 100},  {"PL", 60, 79},  {"NL", 0, 59},
        {"NB", 0, 39}, {"NMB", 40, 59}, {"NMA", 60, 79}, {"NA", 80, 100},
    };
    for (const auto& [concepto, desde, hasta] : umbrales)
        base.Execute(nivel, {concepto, desde, hasta});

    base.Execute(QStringLiteral("insert into Puntaje_SIMCE values (?, ?)"), {100, 400});
    int id = 1;
    for (const char* n : kNiveles)
        base.Execute(QStringLiteral("insert into Niveles values (?, ?)"),
                     {id++, QString::fromUtf8(n)});
}

// The old axes table is read, never changed or dropped.
void Copia_Ejes_Tematicos(BaseDatos& base) {
    if (!base.TableExists(QStringLiteral("ejes_tematicos"))) return;
    Recordset rs =
        base.OpenRecordset(QStringLiteral("select * from ejes_tematicos order by CORRELATIVO"));
    for (; !rs.Eof(); rs.MoveNext()) {
        QVariantList fila;
        for (int i = 0; i < 7; ++i) fila << rs[i];
        base.Execute(QStringLiteral("insert into NEW_EJE_TEMATICO values (?, ?, ?, ?, ?, ?, ?)"),
                     fila);
    }
}

void Crea_Tabla(BaseDatos& base, const QString& tabla) {
    base.Execute(QStringLiteral("CREATE TABLE %1 (%2)").arg(tabla, Definicion_Tabla(tabla)));
}

void Fija_Version(BaseDatos& base) {
    base.Execute(QStringLiteral("PRAGMA user_version = %1").arg(kVersionEsquema));
}

}  // namespace

QString Definicion_Tabla(const QString& tabla) {
    for (const auto& [nombre, columnas] : Tablas())
        if (nombre.compare(tabla, Qt::CaseInsensitive) == 0) return columnas;
    return {};
}

void Crea_Base_Nueva(BaseDatos& base) {
    Transaccion t(base);
    for (const auto& tabla : Tablas()) Crea_Tabla(base, tabla.first);
    for (const char* ix : kIndices) base.Execute(QString::fromUtf8(ix));
    Llena_Base_Nueva(base);
    Fija_Version(base);
    t.Confirma();
}

QStringList Tablas_Que_Faltan(BaseDatos& base) {
    QStringList faltan;
    for (const auto& tabla : Tablas())
        if (!Puede_Faltar(tabla.first) && !base.TableExists(tabla.first)) faltan << tabla.first;
    return faltan;
}

int Version_Esquema(BaseDatos& base) {
    return base.OpenRecordset(QStringLiteral("PRAGMA user_version"))[0].toInt();
}

// SQLite sees its own changes at once, so the store need not be reopened between the tests.
// A missing old table is nothing to copy. A failed step is undone whole and reported, the
// start goes on, and the version stays as it was, so that the next start tries again.
QStringList Migra_Esquema(BaseDatos& base) {
    QStringList fallas;
    const auto intenta = [&](const std::function<void()>& paso) {
        try {
            paso();
        } catch (const ErrorEjecucion& e) {
            fallas << e.texto();
        }
    };
    if (!base.TableExists(QStringLiteral("NEW_EJE_TEMATICO")))
        intenta([&] {
            Transaccion t(base);
            Crea_Tabla(base, QStringLiteral("NEW_EJE_TEMATICO"));
            Copia_Ejes_Tematicos(base);
            t.Confirma();
        });
    for (const char* tabla : {"Puntajes_PSU_NEW", "Puntajes_PSU_DINAMICO"})
        if (!base.TableExists(QString::fromUtf8(tabla)))
            intenta([&] { Crea_Tabla(base, QString::fromUtf8(tabla)); });
    if (fallas.isEmpty() && Version_Esquema(base) < kVersionEsquema)
        intenta([&] {
            for (const char* ix : kIndices) base.Execute(QString::fromUtf8(ix));
            Fija_Version(base);
        });
    return fallas;
}
