// The skills and axes analysis: the current test's results regrouped by thematic axis or by
// skill, for the course and for each student, with levels of achievement read from
// NivelesCalificacion. Questions are matched to their key by row position, for every form.
#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <map>
#include <vector>

class Grilla;

// One range of NivelesCalificacion, in percent: `desde` as stored, `hasta` a 16-bit integer.
struct RangoNivel {
    double desde = 0;
    int16_t hasta = 0;
    bool Contiene(double r) const { return r >= desde && r <= hasta; }
};

// The ranges of the codes the analysis reads ("L", "PL", "NL", "NB", "NMB", "NMA", "NA", "D",
// "ND", "PD"); a code not stored reads as 0 to 0.
class NivelesLogro {
  public:
    void Fija(const QString& codigo, double desde, double hasta);
    RangoNivel operator[](const QString& codigo) const;

  private:
    std::map<QString, RangoNivel> rangos_;
};
// "select concepto,desde, hasta from NivelesCalificacion"; other codes are passed over.
NivelesLogro Lee_Niveles();

// False when Tipo_Analisis asks for axes ("EJE TEMATICO"); skills otherwise, an empty value
// (no axes or skills entry used yet) included.
bool Modo_Habilidades();
// "Analisis Habilidades" or "Analisis Ejes Tematicos", by mode.
QString Titulo_Analisis();

// Key entries of forms 1 to 4 by question: 1 pregunta, 2 alternativa.
void Carga_Respuesta_Prueba(Grilla& SprRespuestas);
// Question and axis (or skill) pairs of the current test, sorted by axis.
void Objetivos_Prueba(Grilla& SprObjetivos);
// The row heads of SprSuperior: names of `ejes` (axes mode) or of `objetivos` (skills mode).
void Lee_Habilidades(Grilla& SprSuperior);
void Lee_Objetivos(Grilla& SprSuperior);
void Lee_Nombres_Por_Modo(Grilla& SprSuperior);

// Course per axis for form `forma`: counts and shares in columns 1 to 7; axes without
// questions are removed. An axis not among the names writes on the last row.
void Pareo_Objetivos_Preguntas(const Grilla& SprRespuestas, const Grilla& SprObjetivos,
                               const QString& forma, Grilla& SprSuperior);

// A student's level for rendimiento `r` of `t` answers; `ultimo` marks the last group of the
// student, which is judged differently.
QString Logro(const NivelesLogro& n, int t, double r, bool ultimo);
QString Nivel_Sep(const NivelesLogro& n, int t, double r, bool ultimo);

// The axis title over each column of SprPantalla (index = column); group k from column 5k-3,
// 20 groups at most: a later axis writes its name over group 20.
QStringList Cabecera_Ejes(const Grilla& SprSuperior, int grupos);
// Heads of SprPantalla: "Forma" then five per group; MaxCols 5n + 1.
void Setea_Grilla_Pantalla(int grupos, Grilla& SprPantalla);
// Axis groups of a student walk: changes of the trimmed axis in SprObjetivos.
int Grupos_Alumno(const Grilla& SprObjetivos);

// Each student per axis (SprPantalla) and, given SprSoloSep, with a SEP level there, five
// columns per group from 5k-2 (the grid is widened to hold every group); empties SprSep when
// given. The SEP screen gives neither.
void Agrega_Alummnos(const Grilla& SprRespuestas, const Grilla& SprObjetivos,
                     const NivelesLogro& niveles, Grilla& SprPantalla, Grilla* SprSoloSep = nullptr,
                     Grilla* SprSep = nullptr);
// " select forma from respuesta_alumnos_por_rut ...", the first record's form.
QString Fnc_Carga_Forma_Prueba(const QString& rut);

// Students of the course in each of the four levels per axis. With `sin_alumnos_termina` a
// course without students ends it at once; without it such a course divides by a total of 0.
void Carga_Nueva_Grilla_Sep(const Grilla& SprSuperior, const Grilla& SprPantalla,
                            const NivelesLogro& niveles, Grilla& SprSep,
                            bool sin_alumnos_termina = true);

// The chart's rows from SprSuperior: % buenas, % malas, % omitidas, rendimiento.
std::vector<std::vector<double>> Datos_Grafico_Ejes(const Grilla& SprSuperior);
