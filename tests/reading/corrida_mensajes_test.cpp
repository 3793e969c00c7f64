// Every message of the reading run, word for word and in order, with what each path leaves
// in the store and in the scan folder: opening checks, failures A and B, the form check, the
// rut dialogue, the replace question and its trap, the key refusals and the end of a run.
#include <gtest/gtest.h>

#include <QDir>

#include "apoyo_corrida.h"
#include "app/estado.h"
#include "platform/dialogos.h"

namespace {

const std::string kLetras = "ABCDEABCDE";
const QString kFalloA = QStringLiteral(
    "Corrector ZORTA|La hoja esta fuera de los margenes maximos permitidos para la lectura.\r"
    "La prueba blanca.bmp sera eliminada, favor tome nota de esta prueba.\rEl proceso continuara "
    "en forma rormal");
const QString kFalloB = QStringLiteral(
    "Correcto ZORTA|Ha ocurrido un error en esta lectura, favor anote el Alumno y vuelva a "
    "corregir");

QString Fin(int hojas) {
    return QStringLiteral("Fin Coreccion|Se han Corregido la cantidad de %1 pruebas").arg(hojas);
}

class Mensajes : public CorridaPrueba {
  public:
    void SetUp() override {
        CorridaPrueba::SetUp();
        Prueba(1, 10);
        Pauta(1, kLetras);
        alumno = Rut_Valido(12345678);
        Alumno(alumno);
        Alumno(QStringLiteral("99999999-9"));
    }
    // Scripts the boxes of `cajas` ("titulo|texto"; Cancel when the text ends in " -> C").
    void Guion(const QStringList& cajas) {
        for (const QString& c : cajas) {
            if (c.startsWith(QLatin1String("Seleccione Rut Alumno|")))
                guion->EsperaSoloRut(c.section('|', 1));
            else
                guion->Espera(c.section('|', 0, 0),
                              c.endsWith(QLatin1String(" -> C")) ? vbCancel : vbOK);
        }
    }
    QStringList Vistas(const QStringList& cajas) {
        QStringList r;
        for (const QString& c : cajas)
            if (!c.startsWith(QLatin1String("Seleccione Rut Alumno|")))
                r << QString(c).remove(" -> C");
        return r;
    }
    QStringList Sin_Lista() {
        QStringList r;
        for (const QString& c : Cajas())
            if (!c.startsWith(QLatin1String("Seleccione Rut Alumno|"))) r << c;
        return r;
    }
    QString alumno;
};

}  // namespace

TEST_F(Mensajes, FormLoadChecksAndCaptions) {
    struct Caso {
        const char* nombre;
        std::function<void(Mensajes&)> prepara;
        QStringList cajas;
        QString carga, corregir;
        bool cargado, lista_descargada;
    };
    const std::vector<Caso> casos = {
        {"sin prueba",
         [](Mensajes&) { estado().Id_Prueba_Actual = 0; },
         {"Analisis Cualitativo|No tiene número de prueba asociado, selecione una prueba para "
          "visualizar"},
         "Escanear Pruebas",
         "Corregir Pruebas",
         false,
         false},
        {"pauta declarada sin filas",
         [](Mensajes& m) { m.Ejecuta("delete from Resp_preguntas_pautas"); },
         {"Correción de Pruebas|La prueba\rHISTORIA NO tiene pauta de respuesta asociada\r Favor "
          "cree esta pauta y "
          "repita el proceso"},
         "Escanear Pruebas",
         "Corregir Pruebas",
         false,
         true},
        {"matriz",
         [](Mensajes&) { estado().Corrige_Pruebas = false; },
         {},
         "Escanear Matriz",
         "Grabar Matriz",
         true,
         false},
        {"seteo sin prueba",
         [](Mensajes& m) {
             estado().Seteo_Hoja = true;
             estado().Preguntas_Actual = 0;
             m.Ejecuta("delete from prueba_rj");
         },
         {"Ingreso Prueba|No existe información en la Base de Datos"},
         "Escanear Pruebas",
         "Corregir Pruebas",
         true,
         false},
    };
    for (const Caso& caso : casos) {
        SCOPED_TRACE(caso.nombre);
        Reinicia();
        caso.prepara(*this);
        Guion(caso.cajas);
        CorridaLectura corrida(&testigo);
        EXPECT_EQ(corrida.Form_Load(), caso.cargado);
        EXPECT_EQ(Cajas(), caso.cajas);
        EXPECT_EQ(corrida.Caption_Carga, caso.carga);
        EXPECT_EQ(corrida.Caption_Corregir, caso.corregir);
        EXPECT_EQ(testigo.llamadas.contains("Descarga_Lista"), caso.lista_descargada);
        EXPECT_EQ(corrida.CmdCorregir_Pruebas_Enabled, !caso.lista_descargada);
        if (caso.lista_descargada) {
            EXPECT_EQ(Valor("select ingreso_pauta from prueba_rj").toString(), "N");
        }
        if (caso.cargado) {
            EXPECT_FALSE(estado().Corrige_Pruebas) << "cleared after use";
        }
    }
}

TEST_F(Mensajes, SheetPathsWordForWord) {
    struct Caso {
        const char* nombre;
        std::function<void(Mensajes&)> prepara;
        QStringList cajas;
        QString codigos;  // what is stored under the rut of the last box or the sheet
        QString rut_guardado;
        int forma = 1;
    };
    const QString otro = Rut_Valido(22333445);
    auto hoja = [](const QString& rut, int forma = 1, int distancia = 852) {
        return
            [=](Mensajes& m) { m.Hoja("hoja.bmp", Hoja_Alumno(kLetras, forma, rut, distancia)); };
    };
    const QString mal = QStringLiteral("12345678-4");
    // Nines read alike at every distance (the low rows of some blocks sample one row down).
    const QString nueves = QStringLiteral("99999999-9");
    const std::vector<Caso> casos = {
        {"solo la primera fila de marcas, fallo A",
         [](Mensajes& m) {
             DisenoHoja d;
             d.filas_marcas = 1;
             m.Hoja("blanca.bmp", d);
         },
         {kFalloA},
         "",
         ""},
        {"distancia 900, fallo B", hoja(Rut_Valido(12345678), 1, 900), {kFalloB}, "", ""},
        {"distancia 850 se lee", hoja(nueves, 1, 850), {Fin(1)}, "1234512345", nueves},
        {"distancia 898 se lee", hoja(nueves, 1, 898), {Fin(1)}, "1234512345", nueves},
        {"forma sin marcar con una forma: forma 1",
         hoja(Rut_Valido(12345678), 0),
         {Fin(1)},
         "1234512345",
         Rut_Valido(12345678)},
        {"rut sin leer, se elige de la lista",
         hoja(""),
         {"Valida Rut|El Rut no detectado, favor ingresar",
          "Seleccione Rut Alumno|" + Rut_Valido(12345678), Fin(1)},
         "1234512345",
         Rut_Valido(12345678)},
        {"rut sin leer, se elimina: contada igual",
         [=](Mensajes& m) {
             hoja("")(m);
             m.Hoja("otra.bmp", Hoja_Alumno(kLetras, 1, nueves));
         },
         {"Valida Rut|El Rut no detectado, favor ingresar", "Seleccione Rut Alumno|",
          "Correccion de prueba|Desea eliminar esta prueba", Fin(2)},
         "1234512345",
         nueves},
        {"rut sin leer, se conserva en blanco",
         hoja(""),
         {"Valida Rut|El Rut no detectado, favor ingresar", "Seleccione Rut Alumno|",
          "Correccion de prueba|Desea eliminar esta prueba -> C", Fin(1)},
         "1234512345",
         ""},
        {"rut incorrecto, se elige",
         hoja(mal),
         {"Valida Rut|Rut Incorrecto... " + mal + ", ingrese Rut",
          "Seleccione Rut Alumno|" + Rut_Valido(12345678), Fin(1)},
         "1234512345",
         Rut_Valido(12345678)},
        {"rut incorrecto, se conserva",
         hoja(mal),
         {"Valida Rut|Rut Incorrecto... " + mal + ", ingrese Rut", "Seleccione Rut Alumno|",
          "Correccion de prueba|Desea eliminar esta prueba -> C", Fin(1)},
         "1234512345",
         mal},
        {"rut sin alumno, en blanco y luego eliminada: descontada",
         hoja(otro),
         {"Verifica Nombre por Rut|El Rut no existe en base de datos, Verifique",
          "Seleccione Rut Alumno|", "Correccion de prueba|Desea eliminar esta prueba -> C",
          "Ingrese Numero de Rut...|El valor del Rut esta en blanco...", "Seleccione Rut Alumno|",
          "Correccion de prueba|Desea eliminar esta prueba"},
         "",
         otro},
        {"rut sin alumno, se elige otro",
         hoja(otro),
         {"Verifica Nombre por Rut|El Rut no existe en base de datos, Verifique",
          "Seleccione Rut Alumno|" + Rut_Valido(12345678), Fin(1)},
         "1234512345",
         Rut_Valido(12345678)},
    };
    for (const Caso& caso : casos) {
        SCOPED_TRACE(caso.nombre);
        Reinicia();
        caso.prepara(*this);
        Guion(caso.cajas);
        ASSERT_TRUE(Corre());
        EXPECT_EQ(Sin_Lista(), Vistas(caso.cajas));
        EXPECT_EQ(Codigos(caso.rut_guardado, caso.forma), caso.codigos);
        EXPECT_TRUE(En_Carpeta().isEmpty()) << "every sheet opened is gone";
    }
}

TEST_F(Mensajes, FormCheckOfAStudentRun) {
    struct Caso {
        const char* nombre;
        QString numero_forma;  // prueba_rj.Numero_Forma, "" without the row
        QStringList cajas;
        int forma_guardada;  // 0: nothing stored and the sheet stays
    };
    const std::vector<Caso> casos = {
        {"varias formas: queda 99", "2", {Fin(1)}, 99},
        {"forma 0",
         "0",
         {"Ingreso Prueba|Existe mas de una forma para esta prueba, no se puede realizar la "
          "asignacion automatica",
          Fin(1)},
         99},
        {"sin fila de la prueba",
         "",
         {"Ingreso Prueba|No existe información de la forma en la Base de Datos"},
         0},
    };
    for (const Caso& caso : casos) {
        SCOPED_TRACE(caso.nombre);
        Reinicia();
        if (caso.numero_forma.isEmpty())
            Ejecuta("delete from prueba_rj");
        else
            Ejecuta("update prueba_rj set Numero_Forma = ?", {caso.numero_forma.toInt()});
        Hoja("hoja.bmp", Hoja_Alumno(kLetras, 0, alumno));
        Guion(caso.cajas);
        ASSERT_TRUE(Corre());
        EXPECT_EQ(Cajas(), caso.cajas);
        if (caso.forma_guardada) {
            EXPECT_EQ(Codigos(alumno, caso.forma_guardada), "1234512345");
            EXPECT_TRUE(En_Carpeta().isEmpty());
        } else {
            EXPECT_EQ(Valor("select count(*) from respuesta_alumnos_por_rut").toInt(), 0);
            EXPECT_EQ(En_Carpeta(), QStringList{"hoja.bmp"}) << "the run ends at once";
        }
    }
}

TEST_F(Mensajes, ReplaceQuestionAndItsTrap) {
    const QString pregunta = "Corrección de Pruebas|El rut " + alumno +
                             " ya existe en la Base de Datos, desea reemplazarlo";
    const QString segundo = Rut_Valido(5126663);
    struct Caso {
        const char* nombre;
        QStringList respuestas;  // to the question, sheet by sheet
        QString final;           // the closing box, "" for none
        QString codigos;
    };
    const std::vector<Caso> casos = {
        {"Aceptar reemplaza", {pregunta}, Fin(1), "1111111111"},
        {"Cancelar borra lo grabado y no cuenta la hoja", {pregunta + " -> C"}, "", ""},
    };
    for (const Caso& caso : casos) {
        SCOPED_TRACE(caso.nombre);
        Reinicia();
        Hoja("a.bmp", Hoja_Alumno(kLetras, 1, alumno));
        Guion({Fin(1)});
        ASSERT_TRUE(Corre());
        guion->cajas.clear();
        Hoja("a.bmp", Hoja_Alumno("AAAAAAAAAA", 1, alumno));
        QStringList cajas = caso.respuestas;
        if (!caso.final.isEmpty()) cajas << caso.final;
        Guion(cajas);
        ASSERT_TRUE(Corre());
        EXPECT_EQ(Cajas(), Vistas(cajas));
        EXPECT_EQ(Codigos(alumno, 1), caso.codigos);
        EXPECT_EQ(Resultado(alumno).size(), caso.codigos.isEmpty() ? 0 : 1);
    }
    // A refusal on an earlier sheet is not taken off the count when the last one is accepted.
    Reinicia();
    Alumno(segundo);
    Hoja("a.bmp", Hoja_Alumno(kLetras, 1, alumno));
    Hoja("b.bmp", Hoja_Alumno(kLetras, 1, segundo));
    Guion({Fin(2)});
    ASSERT_TRUE(Corre());
    guion->cajas.clear();
    Hoja("a.bmp", Hoja_Alumno(kLetras, 1, alumno));
    Hoja("b.bmp", Hoja_Alumno(kLetras, 1, segundo));
    Guion({pregunta + " -> C",
           "Corrección de Pruebas|El rut " + segundo +
               " ya existe en la Base de Datos, desea reemplazarlo",
           Fin(2)});
    ASSERT_TRUE(Corre());
    EXPECT_EQ(Cajas().last(), Fin(2));
}

TEST_F(Mensajes, KeyRunRefusalsAndEnds) {
    struct Caso {
        const char* nombre;
        int formas;
        std::vector<std::pair<std::string, int>> hojas;  // letters and form of each key sheet
        bool pauta_previa;
        QStringList cajas, llamadas;
        int filas_pauta, en_carpeta;
    };
    const QString grave = QStringLiteral(
        "ERROR GRAVE....Creación de pautas|Esta Pauta de prueba ya existe.\rPor lo tanto se "
        "eliminaran las pautas "
        "anteriores \rfavor generar de nuevo la prueba y escanear nuevamente la pauta \r\r         "
        "           "
        "VERIFIQUE LAS FILAS DE SUS PAUTA");
    const std::vector<Caso> casos = {
        {"carpeta vacia",
         1,
         {},
         false,
         {"Lectura Pauta|La pauta NO se ha grabado, No existe imagen para su grabacion , favor "
          "verifique"},
         {"Cierra_Y_Muestra_Lista"},
         0,
         0},
        {"omitidas",
         1,
         {{"AB.DEAB.DE", 1}},
         false,
         {"Ingreso de Pauta|Existe alternativas Omitidas  :\rPregunta Nª 3\rPregunta Nª 8\r marque "
          "las alternativas y "
          "vuelva a escanear la prueba"},
         {},
         0,
         1},
        {"nulas",
         1,
         {{"ABNDEABCDE", 1}},
         false,
         {"Ingreso de Pauta|Existe alternativas Nulas  :\rPregunta Nª 3\r marque las alternativas "
          "y vuelva a escanear "
          "la prueba"},
         {},
         0,
         1},
        {"pauta ya grabada", 1, {{kLetras, 1}}, true, {grave}, {}, 0, 0},
        {"sin forma",
         1,
         {{kLetras, 0}},
         false,
         {"Ingreso de Pauta|Ud. está ingresando una pauta fin FORMA, marque forma y repita el "
          "proceso"},
         {},
         0,
         1},
        {"fallo A: se borran las pautas y la hoja queda", 1, {{"", -1}}, true, {kFalloA}, {}, 0, 1},
        {"fallo B con Grabar Matriz: la hoja se borra",
         1,
         {{kLetras, 900}},
         true,
         {kFalloB},
         {},
         0,
         0},
        {"dos formas, una imagen",
         2,
         {{kLetras, 1}},
         false,
         {"Fin Coreccion|Las Pautas ha sido grabadas"},
         {"Cierra_Y_Muestra_Lista"},
         10,
         0},
    };
    for (const Caso& caso : casos) {
        SCOPED_TRACE(caso.nombre);
        Reinicia();
        Ejecuta("delete from prueba_rj");
        Ejecuta("delete from Resp_preguntas_pautas");
        Prueba(caso.formas, 10, "N");
        if (caso.pauta_previa) Pauta(1, kLetras);
        estado().Lee_Pauta = true;
        estado().Corrige_Pruebas = false;
        // A form of -1 draws only the first row of marks; above 4 it is the distance of a
        // form-1 sheet.
        for (const auto& [letras, forma] : caso.hojas) {
            DisenoHoja d = Hoja_Alumno(letras, forma > 4 ? 1 : std::max(forma, 0), QString(),
                                       forma > 4 ? forma : 852);
            if (forma < 0) d.filas_marcas = 1;
            Hoja(forma < 0 ? QStringLiteral("blanca.bmp") : QStringLiteral("p%1.bmp").arg(forma),
                 d);
        }
        Guion(caso.cajas);
        ASSERT_TRUE(Corre());
        EXPECT_EQ(Cajas(), caso.cajas);
        EXPECT_EQ(testigo.llamadas, caso.llamadas);
        EXPECT_EQ(Valor("select count(*) from Resp_preguntas_pautas").toInt(), caso.filas_pauta);
        EXPECT_EQ(En_Carpeta().size(), caso.en_carpeta);
    }
}

TEST_F(Mensajes, EndOfAStudentRun) {
    // An empty folder: no message, the screen stays, the command stays disabled.
    ASSERT_TRUE(Corre());
    EXPECT_TRUE(guion->cajas.empty());
    EXPECT_TRUE(testigo.llamadas.isEmpty());
    EXPECT_FALSE(corrida->CmdCorregir_Pruebas_Enabled);
    EXPECT_TRUE(corrida->CmdCarga_Lee_Enabled);

    // No minimum grade: the start-up's words, then the run's, and both commands off.
    Ejecuta("delete from NivelesCalificacion where concepto = 'NM'");
    Hoja("a.bmp", Hoja_Alumno(kLetras, 1, alumno));
    const QString texto =
        "No existe valor minimo de notas , verifique en Utilidades, Nivel de Evaluación.";
    Guion({"Indocar Minimo de Notas|" + texto, "Indicar Minimo de Notas|" + texto});
    ASSERT_TRUE(Corre());
    EXPECT_EQ(Cajas(), QStringList({"Indocar Minimo de Notas|" + texto,
                                    "Indicar Minimo de Notas|" + texto}));
    EXPECT_FALSE(corrida->CmdCarga_Lee_Enabled);
    EXPECT_FALSE(corrida->CmdCorregir_Pruebas_Enabled);
    EXPECT_EQ(En_Carpeta(), QStringList{"a.bmp"});
}

TEST_F(Mensajes, WhichFilesAreSheets) {
    // The test is a case-blind ".bmp" anywhere in the path; the count looks at names only.
    Hoja("A.BMP", Hoja_Alumno(kLetras, 1, alumno));
    Hoja("b.bmp.bak", Hoja_Alumno(kLetras, 1, alumno));
    QFile nota(QDir(escaneo).filePath("nota.txt"));
    ASSERT_TRUE(nota.open(QIODevice::WriteOnly));
    nota.close();
    Guion({"Corrección de Pruebas|El rut " + alumno +
               " ya existe en la Base de Datos, desea reemplazarlo",
           Fin(2)});
    ASSERT_TRUE(Corre());
    EXPECT_EQ(En_Carpeta(), QStringList{"nota.txt"});
    EXPECT_EQ(corrida->lbl_CantidadHojas, 2);

    Reinicia();
    escaneo = Ruta("lote.bmp");
    ASSERT_TRUE(QDir().mkpath(escaneo));
    corrida = std::make_unique<CorridaLectura>(&testigo);
    corrida->Carpeta_Forzada = escaneo;
    Hoja("hoja", Hoja_Alumno(kLetras, 1, alumno));
    Guion({Fin(1)});
    ASSERT_TRUE(corrida->Form_Load());
    corrida->CmdCorregir_Pruebas();
    EXPECT_EQ(corrida->lbl_CantidadHojas, 0);
    EXPECT_EQ(Codigos(alumno, 1), "1234512345");
    EXPECT_TRUE(En_Carpeta().isEmpty());
}
