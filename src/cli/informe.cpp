// `zorta informe --prueba N --tipo TIPO [--forma F] [--planilla P] [--modo M] --salida ARCHIVO`:
// the workbook that the export button of a screen writes, from the same grids and the same
// engine, on the current store. Every box is printed with its title.
#include "cli/informe.h"

#include <QTextStream>
#include <functional>
#include <map>

#include "analysis/analisis_curso.h"
#include "analysis/analisis_pregunta.h"
#include "analysis/exporta_planilla.h"
#include "analysis/tablas_ejes.h"
#include "app/estado.h"
#include "app/inicio.h"
#include "cli/cli.h"
#include "grading/evaluacion_correccion.h"
#include "grading/tablas_ensayo.h"
#include "platform/base_datos.h"
#include "platform/dialogos_consola.h"
#include "platform/error_ejecucion.h"
#include "platform/numeros.h"
#include "store/copias_prueba.h"

namespace {

const char* const kAyuda =
    "Uso: zorta informe --prueba N --tipo TIPO [--forma F] [--planilla P] [--modo M]\n"
    "                   --salida ARCHIVO.xlsx\n"
    "Escribe, sin ventanas, la planilla que exporta la pantalla de análisis de la prueba N, con\n"
    "las mismas celdas y el mismo gráfico.\n\n"
    "  --tipo TIPO      curso        Analisis Cuantitativo Curso\n"
    "                   pregunta     Analisis por Pregunta\n"
    "                   ejes         Analisis Eje Tematico\n"
    "                   habilidades  Analisis Habilidades\n"
    "                   sep          Imprimir SEP\n"
    "                   psu          Ensayo PSU\n"
    "                   simce        Ensayo SIMCE\n"
    "                   correccion   Corrección General\n"
    "  --forma F        solo la forma F (pregunta, ejes, habilidades, sep); sin ella, una\n"
    "                   prueba de varias formas escribe un archivo por forma, ARCHIVO_FORMA_k,\n"
    "                   como el botón de la pantalla\n"
    "  --planilla P     el botón de exportación de ejes, habilidades y sep:\n"
    "                   curso (por omisión), alumnos, resultados-sep, solo-sep, logros-sep\n"
    "                   (logros-sep no existe en sep)\n"
    "  --modo M         ejes o habilidades, para sep (por omisión habilidades, como la\n"
    "                   pantalla recién abierta)\n"
    "  --salida ARCHIVO la planilla a escribir (.xlsx)\n"
    "  --help           muestra esta ayuda\n\n"
    "Estado de salida: 0 si se escribieron las planillas; 2 si los argumentos no son válidos,\n"
    "la prueba no existe o no tiene resultados, o una planilla no se pudo escribir.\n";

struct Argumentos {
    int prueba = 0;
    QString tipo, forma, planilla = QStringLiteral("curso"), modo = QStringLiteral("habilidades"),
                         salida;
};

bool Lee_Argumentos(const QStringList& args, Argumentos& a) {
    const std::map<QString, QString*> textos = {{"--tipo", &a.tipo},
                                                {"--forma", &a.forma},
                                                {"--planilla", &a.planilla},
                                                {"--modo", &a.modo},
                                                {"--salida", &a.salida}};
    for (int i = 0; i < args.size(); ++i) {
        const QString valor = args.value(++i);
        if (valor.isEmpty()) return false;
        if (args[i - 1] == QLatin1String("--prueba")) {
            bool ok = false;
            a.prueba = valor.toInt(&ok);
            if (!ok) return false;
        } else if (const auto t = textos.find(args[i - 1]); t != textos.end()) {
            *t->second = valor;
        } else {
            return false;
        }
    }
    return a.prueba > 0 && a.prueba <= 32767 && !a.salida.isEmpty();
}

// A report's grid, its kind, and what a several-forms export writes instead.
struct Boton {
    Grilla* grilla;
    int16_t tipo;
    Grilla* varias;
    int16_t tipo_varias;
};

class Informe {
  public:
    Informe(const Argumentos& a, QTextStream& err) : a_(a), err_(err) {}
    // Writes the report; the exit status.
    int Escribe();

  private:
    using Prepara = std::function<void(const QString& forma)>;
    using Exporta = std::function<bool(const QString& archivo)>;

    bool Curso();
    bool Pregunta();
    bool Ejes(bool sep);
    bool Correccion();
    bool Simple(Grilla& grilla, int16_t tipo, Grafico& grafico);
    // One file under --salida, or, with several forms and no --forma, one file a form.
    bool Por_Formas(const QStringList& formas, const Prepara& prepara, const Exporta& una,
                    const Exporta& varias);
    bool Falla(const QString& texto);

    const Argumentos& a_;
    QTextStream& err_;
};

bool Informe::Falla(const QString& texto) {
    err_ << "zorta informe: " << texto << "\n";
    return false;
}

bool Informe::Simple(Grilla& grilla, int16_t tipo, Grafico& grafico) {
    return Exporta_Planilla(a_.salida, grilla, grilla, tipo, {&grafico, nullptr});
}

bool Informe::Por_Formas(const QStringList& formas, const Prepara& prepara, const Exporta& una,
                         const Exporta& varias) {
    if (!a_.forma.isEmpty()) {
        if (!formas.contains(a_.forma))
            return Falla(QStringLiteral("la prueba no tiene la forma ") + a_.forma);
        prepara(a_.forma);
        return una(a_.salida);
    }
    // Without a key the screen writes no file either.
    if (formas.isEmpty()) return Falla(QStringLiteral("la prueba no tiene pauta"));
    if (formas.size() == 1) return una(a_.salida);
    bool bien = true;
    Exporta_Formas(
        a_.salida, static_cast<int>(formas.size()), [&](int k) { prepara(formas[k - 1]); },
        [&](const QString& archivo) { bien = varias(archivo) && bien; });
    return bien;
}

bool Informe::Curso() {
    TablasCurso t;
    t.Carga_Curso();
    return Simple(t.SprResulprucargada, 2, t.MSChart1);
}

// One form is computed at once as form 1, with the test's identity beside it; a chosen form
// loses that identity, as on the screen.
bool Informe::Pregunta() {
    TablasPregunta t;
    t.Setea_Grilla();
    t.Setea_Grilla_Fre();
    QStringList formas;
    Carga_Formas_Pauta(formas);
    if (formas.size() < 2) {
        t.Calcula_Forma(1);
        Agrega_Datos_Prueba(t.SprAciertos);
        Agrega_Datos_Prueba(t.SprFrecuencia);
    }
    const FuentesExportacion f{&t.MSChart1, nullptr};
    const Exporta exporta = [&](const QString& archivo) {
        return Exporta_Planilla(archivo, t.SprAciertos, t.SprFrecuencia, 1, f);
    };
    return Por_Formas(
        formas, [&](const QString& forma) { t.Calcula_Forma(CInt(Val(forma))); }, exporta, exporta);
}

// The SEP reports name their axes and take their chart from an axes analysis of their own,
// as the SEP screen does from the axes screen.
bool Informe::Ejes(bool sep) {
    if (sep && a_.modo != QLatin1String("ejes") && a_.modo != QLatin1String("habilidades"))
        return Falla(QStringLiteral("modo desconocido: ") + a_.modo);
    estado().Tipo_Analisis =
        (sep ? a_.modo == QLatin1String("ejes") : a_.tipo == QLatin1String("ejes"))
            ? QStringLiteral("EJE TEMATICO")
            : QStringLiteral("HABILIDAD");
    QStringList formas;
    Carga_Formas_Pauta(formas);
    TablasEjes t(sep);
    if (!t.Carga_Ejes(formas.value(0))) return Falla(QStringLiteral("la prueba no tiene ejes"));
    TablasEjes habili_objet;
    if (sep) habili_objet.Carga_Ejes(formas.value(0));
    const FuentesExportacion f = sep ? habili_objet.Fuentes_Propias() : t.Fuentes_Propias();
    const std::map<QString, Boton> botones = {
        {"curso", {&t.SprSuperior, 5, &t.SprSuperior, 5}},
        {"alumnos", {&t.SprPantalla, 6, &t.SprPantalla, 6}},
        {"resultados-sep", {&t.SprSep, 7, &t.SprPantalla, 6}},
        {"solo-sep", {&t.SprSoloSep, 8, &t.SprPantalla, 6}},
        {"logros-sep", {&t.SprSoloSep, 9, &t.SprPantalla, 6}}};
    const auto b = botones.find(a_.planilla);
    if (b == botones.end() || (sep && b->second.tipo == 9))
        return Falla(QStringLiteral("planilla desconocida: ") + a_.planilla);
    const Boton boton = b->second;
    return Por_Formas(
        formas, [&](const QString& forma) { t.Recalcula_Forma(forma); },
        [&](const QString& archivo) {
            return Exporta_Planilla(archivo, *boton.grilla, *boton.grilla, boton.tipo, f);
        },
        [&](const QString& archivo) {
            return Exporta_Planilla(archivo, *boton.varias, *boton.varias, boton.tipo_varias, f);
        });
}

bool Informe::Correccion() {
    Grilla alumnos(1, 11), copia(0, 11);
    Cabezas_Evaluacion(alumnos);
    Cabezas_Evaluacion(copia);
    Carga_Alumnos_Pantalla(alumnos);
    QString desde = QStringLiteral("0"), hasta = QStringLiteral("0");
    Lee_Porcentajes_Nota(desde, hasta);
    try {
        Exportar_Excel_Correccion(a_.salida, alumnos, copia, desde, hasta);
    } catch (const ErrorEjecucion& e) {
        return Falla(e.texto());
    }
    return true;
}

int Informe::Escribe() {
    const std::map<QString, std::function<bool()>> tipos = {
        {"curso", [this] { return Curso(); }},
        {"pregunta", [this] { return Pregunta(); }},
        {"ejes", [this] { return Ejes(false); }},
        {"habilidades", [this] { return Ejes(false); }},
        {"sep", [this] { return Ejes(true); }},
        {"psu",
         [this] {
             TablasPsu t;
             t.Carga_Psu();
             return Simple(t.SprPSU, 3, t.MSChart1);
         }},
        {"simce",
         [this] {
             TablasSimce t;
             t.Carga_Simce();
             return Simple(t.SprPSU, 4, t.MSChart1);
         }},
        {"correccion", [this] { return Correccion(); }}};
    const auto t = tipos.find(a_.tipo);
    if (t == tipos.end()) {
        Falla(QStringLiteral("tipo de informe desconocido: ") + a_.tipo);
        return 2;
    }
    Recordset rs = estado().BaseDatos->OpenRecordset(
        QStringLiteral("select count(*) from ResultadoAlumnos_rj where idprueba = ?"), {a_.prueba});
    if (rs[0].toInt() == 0) {
        Falla(QStringLiteral("la prueba %1 no tiene resultados").arg(a_.prueba));
        return 2;
    }
    if (!t->second()) {
        Falla(QStringLiteral("no se escribió ") + a_.salida);
        return 2;
    }
    return 0;
}

}  // namespace

int Cmd_Informe(const QStringList& args) {
    static QTextStream salida(stdout);
    QTextStream err(stderr);
    if (Pide_Ayuda(args, kAyuda)) return 0;
    Argumentos a;
    if (!Lee_Argumentos(args, a)) {
        err << "zorta informe: opciones no válidas\n" << kAyuda;
        return 2;
    }
    Instala_Dialogos(std::make_unique<DialogosConsola>(salida));
    if (!MDIForm_Load()) return 1;
    if (!Fija_Prueba_Actual(static_cast<int16_t>(a.prueba))) {
        err << "zorta informe: no existe la prueba " << a.prueba << "\n";
        return 2;
    }
    return Informe(a, err).Escribe();
}
