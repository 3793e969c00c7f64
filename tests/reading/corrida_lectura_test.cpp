// The reading run end to end on a real store: student runs graded from the scale, key runs of
// one and two forms, a run added to the present correction, and the operator's log.
#include <gtest/gtest.h>

#include <QRegularExpression>

#include "apoyo_corrida.h"
#include "app/estado.h"

namespace {

const std::string kPauta1 = "ABCDEABCDEABCDEABCDEABCDEABCDE";
const std::string kPauta2 = "EDCBAEDCBAEDCBAEDCBAEDCBAEDCBA";

// The letters of a key with the first `buenas` kept and the rest replaced by `resto`.
std::string Con_Buenas(const std::string& pauta, int buenas, const std::string& resto) {
    return pauta.substr(0, buenas) + resto;
}

std::string Otra_Letra(const std::string& pauta) {
    std::string s = pauta;
    for (char& l : s) l = l == 'A' ? 'B' : 'A';
    return s;
}

class Corrida : public CorridaPrueba {};

}  // namespace

TEST_F(Corrida, StudentRunStoresWhatTheSheetsSayAndGradesThem) {
    Prueba(2, 30);
    Pauta(1, kPauta1);
    Pauta(2, kPauta2);
    struct Caso {
        int cuerpo, forma;
        std::string letras;
        QString resultado;
    };
    const std::vector<Caso> casos = {
        {12345678, 1, kPauta1, "30/0/0/0/100/7/1"},
        {9876543, 2, Con_Buenas(kPauta2, 18, Otra_Letra(kPauta2).substr(18)), "18/12/0/0/60/4/2"},
        {15222333, 1, Con_Buenas(kPauta1, 15, "..........N" + Otra_Letra(kPauta1).substr(26)),
         "15/4/10/1/50/3.5/1"},
        {7000112, 2, Otra_Letra(kPauta2), "0/30/0/0/0/1/2"},
    };
    for (size_t i = 0; i < casos.size(); ++i) {
        Alumno(Rut_Valido(casos[i].cuerpo));
        Hoja(QStringLiteral("hoja%1.bmp").arg(i),
             Hoja_Alumno(casos[i].letras, casos[i].forma, Rut_Valido(casos[i].cuerpo)));
    }
    guion->Espera("Fin Coreccion");
    ASSERT_TRUE(Corre());
    for (const Caso& c : casos) {
        const QString rut = Rut_Valido(c.cuerpo);
        EXPECT_EQ(Codigos(rut, c.forma), Codigos_Alumno(c.letras)) << rut.toStdString();
        EXPECT_EQ(Resultado(rut), QStringList{c.resultado}) << rut.toStdString();
    }
    EXPECT_EQ(Cajas(), QStringList{"Fin Coreccion|Se han Corregido la cantidad de 4 pruebas"});
    EXPECT_TRUE(En_Carpeta().isEmpty());
    EXPECT_EQ(testigo.llamadas, QStringList{"Cierra_Y_Muestra_Lista"});
    EXPECT_EQ(corrida->Hojas_Vistas, 3) << "starts at -1";
    EXPECT_EQ(corrida->lbl_Leidas, 4);
    EXPECT_EQ(corrida->lbl_CantidadHojas, 4);
    EXPECT_FALSE(corrida->CmdCorregir_Pruebas_Enabled);
}

TEST_F(Corrida, KeyRunsOfOneAndTwoForms) {
    struct Caso {
        int formas, preguntas;
        QStringList cajas, llamadas;
    };
    const std::vector<Caso> casos = {
        {1,
         30,
         {"Graba Pautas|UD. ha grabado 1 de : 1", "Fin Coreccion|La Pauta ha sido grabada"},
         {"Descarga_Lista", "Cierra_Y_Muestra_Lista"}},
        {2,
         60,
         {"Graba Pautas|UD. ha grabado 2 de : 2", "Fin Coreccion|Las Pautas ha sido grabadas"},
         {"Descarga_Lista"}},
    };
    for (const Caso& caso : casos) {
        SCOPED_TRACE(caso.formas);
        Reinicia();
        Prueba(caso.formas, caso.preguntas, "N");
        estado().Lee_Pauta = true;
        estado().Corrige_Pruebas = false;
        std::vector<std::string> claves;
        for (int f = 1; f <= caso.formas; ++f) {
            claves.push_back(std::string(caso.preguntas, 'A'));
            for (int q = 0; q < caso.preguntas; ++q) claves.back()[q] = char('A' + (q * f + f) % 5);
            Hoja(QStringLiteral("pauta%1.bmp").arg(f), Hoja_Alumno(claves.back(), f, QString()));
        }
        for (const QString& c : caso.cajas) guion->Espera(c.section('|', 0, 0));
        ASSERT_TRUE(Corre());
        EXPECT_EQ(Cajas(), caso.cajas);
        EXPECT_EQ(testigo.llamadas, caso.llamadas);
        for (int f = 1; f <= caso.formas; ++f) {
            QString esperados;
            for (const char l : claves[f - 1]) esperados += QChar('1' + (l - 'A'));
            EXPECT_EQ(Valor("select group_concat(alternativa, '') from (select alternativa from "
                            "Resp_preguntas_pautas where forma = ? order by pregunta)",
                            {f})
                          .toString(),
                      esperados);
        }
        EXPECT_EQ(Valor("select ingreso_pauta from prueba_rj").toString(), "S");
        EXPECT_EQ(Valor("select count(*) from respuesta_alumnos_por_rut").toInt(), 0)
            << "the key sheet reaches the student store with the box's design text, and is refused";
        EXPECT_FALSE(estado().Lee_Pauta);
        EXPECT_EQ(corrida->CmdCorregir_Pruebas_Enabled, false);
        EXPECT_TRUE(En_Carpeta().isEmpty());
    }
}

TEST_F(Corrida, AddedRunGradesOnlyTheNewSheets) {
    Prueba(1, 30);
    Pauta(1, kPauta1);
    const QString a = Rut_Valido(11222333), b = Rut_Valido(14555667);
    Alumno(a);
    Alumno(b);
    Hoja("a.bmp", Hoja_Alumno(kPauta1, 1, a));
    guion->Espera("Fin Coreccion");
    ASSERT_TRUE(Corre());
    // The first student's result is spoilt on purpose: a partial run must not rewrite it.
    Ejecuta("update ResultadoAlumnos_rj set Nota = 2");
    Hoja("b.bmp", Hoja_Alumno(Con_Buenas(kPauta1, 18, Otra_Letra(kPauta1).substr(18)), 1, b));
    estado().Agrega_Actual = true;
    guion->Espera("Fin Coreccion");
    ASSERT_TRUE(Corre());
    EXPECT_EQ(corrida->c.Lst_Recorreccion, QStringList{b});
    EXPECT_EQ(Resultado(a), QStringList{"30/0/0/0/100/2/1"});
    EXPECT_EQ(Resultado(b), QStringList{"18/12/0/0/60/4/1"});
    EXPECT_EQ(Cajas().last(), "Fin Coreccion|Se han Corregido la cantidad de 1 pruebas");
}

TEST_F(Corrida, OperatorsLogHoldsEachRowOfMarks) {
    Prueba(1, 10, "N");
    estado().Lee_Pauta = true;
    Hoja("pauta.bmp", Hoja_Alumno("ABCDEABCDE", 1, QString()));
    guion->Espera("Graba Pautas");
    guion->Espera("Fin Coreccion");
    ASSERT_TRUE(Corre());
    const QStringList& log = corrida->c.List1;
    ASSERT_EQ(log.size(), 15);
    EXPECT_EQ(log[2], "diferencia : 852");
    EXPECT_EQ(log[3], "SEGUNDO CUADRO");
    EXPECT_EQ(log[7], "TERCER CUADRO");
    EXPECT_EQ(log[11], "CUARTO CUADRO");
    const QRegularExpression marca("^\\d+ ; \\d+$");
    for (int i : {0, 1, 4, 5, 8, 9, 12})
        EXPECT_TRUE(marca.match(log[i]).hasMatch()) << log[i].toStdString();
    EXPECT_EQ(log[0], "59 ; 77");
    EXPECT_EQ(corrida->c.SprRespuesta_Correctas.MaxRows(), 10) << "no spare row";
}
