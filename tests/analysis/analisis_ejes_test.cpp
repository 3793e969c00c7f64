// The axes and skills analysis: the levels read by code, the course and student groups, the
// positional key, the SEP counts and the heads of the students' grid.
#include "analysis/analisis_ejes.h"

#include <gtest/gtest.h>

#include <map>

#include "analysis/exporta_planilla.h"
#include "analysis/prueba_ejes.h"
#include "app/estado.h"
#include "platform/error_ejecucion.h"
#include "platform/grafico.h"
#include "platform/grilla.h"
#include "platform/planilla.h"

namespace {

NivelesLogro Niveles_Prueba() {
    NivelesLogro n;
    const std::tuple<const char*, double, double> rangos[] = {
        {"L", 80, 100},  {"PL", 60, 79},  {"NL", 10, 59}, {"NB", 0, 39},  {"NMB", 40, 59},
        {"NMA", 60, 79}, {"NA", 80, 100}, {"PD", 0, 39},  {"ND", 40, 69}, {"D", 70, 100}};
    for (const auto& [c, d, h] : rangos) n.Fija(QString::fromLatin1(c), d, h);
    return n;
}

TEST(AnalisisEjes, LogroYNivelSepSegunElGrupo) {
    const NivelesLogro n = Niveles_Prueba();
    const struct {
        int t;
        double r;
        bool ultimo;
        const char* logro;
        const char* sep;
    } casos[] = {
        {0, 0, false, "INICIAL", "PD"},    {0, 0, true, "INICIAL", "PD"},
        {4, 100, false, "AVANZADO", "D"},  {4, 80, false, "AVANZADO", "D"},
        {4, 79, false, "INTERMEDIO", "D"}, {4, 60, false, "INTERMEDIO", "ND"},
        {4, 59, false, "INICIAL", "ND"},   {4, 59.5, true, "", "PD"},
        {4, 5, false, "INICIAL", "PD"},    {4, 5, true, "", "PD"},
        {4, 10, true, "INICIAL", "PD"},    {4, 0, true, "", "ND"},
        {4, 60, true, "INTERMEDIO", "D"},  {4, 100, true, "AVANZADO", "PD"},
        {4, 39.5, false, "INICIAL", "PD"}, {4, 69.5, false, "INTERMEDIO", "PD"},
    };
    for (const auto& c : casos) {
        EXPECT_EQ(Logro(n, c.t, c.r, c.ultimo), c.logro) << c.r << " " << c.ultimo;
        EXPECT_EQ(Nivel_Sep(n, c.t, c.r, c.ultimo), c.sep) << c.r << " " << c.ultimo;
    }
    // A code not stored reads as 0 to 0.
    EXPECT_EQ(Logro(NivelesLogro{}, 3, 0, false), "AVANZADO");
}

TEST(AnalisisEjes, VeintiunEjesEscribenSobreElVigesimo) {
    Grilla sup(21, 7);
    for (int k = 1; k <= 21; ++k) sup.FijaCelda(k, 0, QStringLiteral("EJE%1").arg(k));
    const QStringList cabecera = Cabecera_Ejes(sup, 21);
    EXPECT_EQ(cabecera.value(2), "EJE1");
    EXPECT_EQ(cabecera.value(6), "EJE1");
    EXPECT_EQ(cabecera.value(96), "EJE19");
    EXPECT_EQ(cabecera.value(97), "EJE21");
    EXPECT_EQ(cabecera.value(101), "EJE21");
    EXPECT_EQ(cabecera.value(102), "");
    Grilla pantalla;
    Setea_Grilla_Pantalla(21, pantalla);
    EXPECT_EQ(pantalla.MaxCols(), 106);
    const QStringList fila = {pantalla.Celda(0, 1), pantalla.Celda(0, 2), pantalla.Celda(0, 102),
                              pantalla.Celda(0, 106)};
    EXPECT_EQ(fila, QStringList({"Forma", "Buenas", "Buenas", "Logro"}));
}

class Ejes : public PruebaEjes {
  protected:
    void Calcula() {
        Carga_Respuesta_Prueba(respuestas);
        Objetivos_Prueba(objetivos);
        Lee_Nombres_Por_Modo(sup);
        Pareo_Objetivos_Preguntas(respuestas, objetivos, "1", sup);
        Setea_Grilla_Pantalla(Grupos_Alumno(objetivos), pantalla);
        Agrega_Alummnos(respuestas, objetivos, Niveles_Prueba(), pantalla, &solo, &sep);
        Carga_Nueva_Grilla_Sep(sup, pantalla, Niveles_Prueba(), sep);
    }
    static QStringList Fila(const Grilla& g, int fila, int desde, int hasta) {
        QStringList t;
        for (int c = desde; c <= hasta; ++c) t << g.Celda(fila, c);
        return t;
    }
    Grilla respuestas{0, 2}, objetivos{0, 2}, sup{0, 7}, pantalla{0, 1}, solo{0, 7}, sep{0, 9};
};

TEST_F(Ejes, CursoPorEjeYAlumnosPorGrupo) {
    Clave(1, {1, 2, 3});
    Eje(1, "Algebra");
    Eje(2, "Numeros");
    Eje(3, "NUMEROS ");
    Alumno("1-9", "Arce", 1, {1, 2, 6});
    Alumno("2-7", "Bravo", 1, {3, 2, 3});
    Calcula();
    // Geometria has no questions; the two spellings of Numeros are one course group.
    ASSERT_EQ(sup.MaxRows(), 2);
    EXPECT_EQ(sup.Celda(1, 0), "Algebra");
    EXPECT_EQ(Fila(sup, 1, 1, 7), QStringList({"1", "50%", "1", "50%", "0", "0%", "50%"}));
    EXPECT_EQ(sup.Celda(2, 0), "Numeros");
    EXPECT_EQ(Fila(sup, 2, 1, 7), QStringList({"3", "75%", "0", "0%", "1", "25%", "75%"}));
    EXPECT_EQ(Datos_Grafico_Ejes(sup)[1], (std::vector<double>{75, 0, 25, 75}));
    // ... but two student groups; the last is judged by its own rules.
    ASSERT_EQ(pantalla.MaxRows(), 2);
    EXPECT_EQ(pantalla.MaxCols(), 16);
    EXPECT_EQ(pantalla.Celda(0, 0), "ALUMNOS");
    EXPECT_EQ(Fila(pantalla, 1, 0, 16),
              QStringList({"Arce", "1", "1", "0", "0", "100", "AVANZADO", "1", "0", "0", "100",
                           "AVANZADO", "0", "0", "1", "0", ""}));
    EXPECT_EQ(pantalla.BackColor(1, 1), ColorAmarillo);
    EXPECT_EQ(Fila(pantalla, 2, 2, 16),
              QStringList({"0", "1", "0", "0", "INICIAL", "1", "0", "0", "100", "AVANZADO", "1",
                           "0", "0", "100", "AVANZADO"}));
    EXPECT_EQ(solo.MaxRows(), 3) << "keeps its spare row";
    EXPECT_EQ(Fila(solo, 1, 1, 17), QStringList({"Arce", "", "1", "0", "0", "100", "D", "1", "0",
                                                 "0", "100", "D", "0", "0", "1", "0", "ND"}));
    EXPECT_EQ(Fila(solo, 2, 3, 17), QStringList({"0", "1", "0", "0", "PD", "1", "0", "0", "100",
                                                 "D", "1", "0", "0", "100", "PD"}));
    // SEP counts by the rendimiento of groups 1 and 2, in the order of the course's rows.
    ASSERT_EQ(sep.MaxRows(), 3);
    EXPECT_EQ(Fila(sep, 1, 1, 9),
              QStringList({"Algebra", "1", "50", "0", "0", "0", "0", "1", "50"}));
    EXPECT_EQ(Fila(sep, 2, 1, 9),
              QStringList({"Numeros", "0", "0", "0", "0", "0", "0", "2", "100"}));
}

// Names that differ in case and accent: the course's rows, the students' groups and the SEP
// rows pair up by position, so all must sort alike, as a Spanish reader would.
TEST_F(Ejes, CadaEjeConSusCifrasAunqueDifieranMayusculasYTildes) {
    Ejecuta("delete from ejes");
    const QStringList ejes = {"Números", "datos", "Geometría", "álgebra"};
    for (const QString& e : ejes)
        Ejecuta("insert into ejes (eje, TipoEnsayo, TipoPrueba) values (?, '', 'GENERAL')", {e});
    // Axis k holds k + 1 questions, so each group's right answers tell its axis.
    const std::map<QString, int> preguntas = {
        {"álgebra", 2}, {"datos", 3}, {"Geometría", 4}, {"Números", 5}};
    std::vector<int> clave;
    for (const auto& [eje, n] : preguntas)
        for (int i = 0; i < n; ++i) {
            clave.push_back(1);
            Eje(int(clave.size()), eje);
        }
    Clave(1, clave);
    for (const char* rut : {"1-9", "2-7", "3-5"})
        Alumno(rut, QStringLiteral("Alumno %1").arg(rut), 1, clave);
    Calcula();
    const QStringList orden = {"álgebra", "datos", "Geometría", "Números"};
    ASSERT_EQ(sup.MaxRows(), 4);
    const QStringList cabecera = Cabecera_Ejes(sup, 4);
    for (int k = 1; k <= 4; ++k) {
        const QString eje = sup.Celda(k, 0);
        EXPECT_EQ(eje, orden[k - 1]);
        const QString buenas = QString::number(preguntas.at(eje));
        EXPECT_EQ(sup.Celda(k, 1), QString::number(3 * preguntas.at(eje))) << eje.toStdString();
        EXPECT_EQ(cabecera.value(5 * k - 3), eje);
        EXPECT_EQ(pantalla.Celda(1, 5 * k - 3), buenas) << "student group " << k;
        EXPECT_EQ(solo.Celda(1, 5 * k - 2), buenas) << "SEP group " << k;
        EXPECT_EQ(sep.Celda(k, 1), eje);
    }
    // The SEP reports hold every axis: the last group's level is in kind 8 and kind 9 alike.
    ASSERT_EQ(solo.MaxCols(), 22);
    EXPECT_EQ(solo.Celda(3, 22), "PD");
    Hoja h8(QStringLiteral("h8")), h9(QStringLiteral("h9"));
    Arma_Planilla(h8, solo, solo, 8, {nullptr, &sup});
    EXPECT_EQ(h8.Valor(3, 22), "PD");
    EXPECT_EQ(h8.Valor(3, 18), "5");
    Grafico grafico;
    Arma_Planilla(h9, solo, solo, 9, {&grafico, &sup});
    EXPECT_EQ(h9.Valor(1, 18), "NÚMEROS");
    EXPECT_EQ(h9.Valor(5, 18), "5");
    EXPECT_EQ(h9.Valor(5, 22), "PD");
}

TEST_F(Ejes, PorcentajesADosDecimalesYRendimientoSinDecimales) {
    Clave(1, {1});
    Eje(1, "Numeros");
    const int respuestas_q1[] = {1, 1, 1, 1, 1, 2, 3, 6};
    for (int i = 0; i < 8; ++i)
        Alumno(QStringLiteral("%1-K").arg(i), QStringLiteral("A%1").arg(i), 1, {respuestas_q1[i]});
    Calcula();
    // 5 of 8 is 62.5: ties go to the even, "62%"; the single group is also the last.
    EXPECT_EQ(Fila(sup, 1, 1, 7), QStringList({"5", "62.5%", "2", "25%", "1", "12.5%", "62%"}));
    EXPECT_EQ(Fila(sep, 1, 2, 9), QStringList({"3", "38", "0", "0", "0", "0", "5", "62"}));
    EXPECT_EQ(solo.Celda(1, 7), "PD") << "r 100 is no bound of the last group";
    EXPECT_EQ(solo.Celda(6, 7), "ND") << "r 0 equals NB's desde";
    EXPECT_EQ(solo.Celda(1, 6), "100");
}

TEST_F(Ejes, LaClaveSeLeePorPosicionDeFila) {
    Clave(1, {1, 2});
    Clave(2, {2, 1});
    Eje(1, "Numeros");
    Eje(2, "Numeros");
    // Rows 1 and 2 of the key are question 1 of forms 1 and 2: right answers on form 2
    // count as wrong.
    Alumno("1-9", "Arce", 2, {2, 1});
    Calcula();
    EXPECT_EQ(Fila(pantalla, 1, 0, 5), QStringList({"Arce", "2", "0", "2", "0", "0"}));
    EXPECT_EQ(pantalla.BackColor(1, 1), ColorAmarillo);
    EXPECT_EQ(sup.Celda(1, 1), "0") << "the course grid counts form 1 only";
}

TEST_F(Ejes, ModoHabilidadesYUnEjeFueraDeLaLista) {
    Clave(1, {1, 2});
    Ejecuta("insert into objetivos values (1, 'Analizar', '', '')");
    Ejecuta("insert into objetivos values (2, 'Aplicar', '', '')");
    Eje(1, "Numeros", "Analizar");
    Eje(2, "Numeros", "Otra");
    Alumno("1-9", "Arce", 1, {1, 1});
    estado().Tipo_Analisis = "HABILIDAD";
    Calcula();
    // "Otra" is no skill of the list: its values land on the last row.
    ASSERT_EQ(sup.MaxRows(), 2);
    EXPECT_EQ(Fila(sup, 1, 0, 2), QStringList({"Analizar", "1", "100%"}));
    EXPECT_EQ(Fila(sup, 2, 0, 2), QStringList({"Aplicar", "0", "0%"}));
    EXPECT_EQ(sup.Celda(2, 3), "1");
}

TEST_F(Ejes, NivelesPorCodigoYDivisionPorCero) {
    Ejecuta("delete from NivelesCalificacion where concepto = 'NL'");
    Ejecuta("insert into NivelesCalificacion values ('NL', 59.5, 79.5)");
    Ejecuta("insert into NivelesCalificacion values ('XX', 1, 2)");
    const NivelesLogro n = Lee_Niveles();
    EXPECT_EQ(n["NL"].desde, 59.5);
    EXPECT_EQ(n["NL"].hasta, 80) << "hasta is a 16-bit integer, ties to even";
    EXPECT_EQ(n["NA"].desde, 80);
    EXPECT_EQ(n["XX"].hasta, 0);
    Clave(1, {1, 2});
    Eje(1, "Algebra");
    Eje(2, "Numeros");
    Alumno("1-9", "Arce", 1, {1});
    EXPECT_THROW(Calcula(), ErrorEjecucion) << "a group without answers divides by zero";
}

}  // namespace
