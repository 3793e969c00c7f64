// Bad input of the reading run: a file that is not a bitmap, a read-only sheet, scaner.ini
// missing or short, and the scan hand-over. Nothing stored is lost and nothing crashes.
#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QThread>

#include "apoyo_corrida.h"
#include "app/estado.h"

namespace {

const std::string kLetras = "ABCDEABCDE";

class Fallas : public CorridaPrueba {
  public:
    void SetUp() override {
        CorridaPrueba::SetUp();
        Prueba(1, 10);
        Pauta(1, kLetras);
        for (int cuerpo : {12345678, 11222333, 15222333}) Alumno(Rut_Valido(cuerpo));
    }
    void Escribe(const QString& ruta, const QByteArray& contenido) {
        QFile f(ruta);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(contenido);
    }
    int Guardadas() {
        return Valor("select count(distinct rut_alumno) from respuesta_alumnos_por_rut").toInt();
    }
};

}  // namespace

TEST_F(Fallas, AFileThatIsNotABitmapStopsTheRunAndKeepsWhatWasStored) {
    Hoja("a.bmp", Hoja_Alumno(kLetras, 1, Rut_Valido(12345678)));
    Escribe(QDir(escaneo).filePath("b.bmp"), "esto no es una imagen");
    Hoja("c.bmp", Hoja_Alumno(kLetras, 1, Rut_Valido(11222333)));
    guion->Espera("Error de ejecución");
    EXPECT_FALSE(Corre());
    const QString texto = guion->cajas.back().texto;
    EXPECT_TRUE(texto.startsWith("No se pudo abrir la hoja b.bmp: ")) << texto.toStdString();
    EXPECT_TRUE(
        texto.endsWith(". Retire la hoja b.bmp de la carpeta de escaneo y vuelva a corregir."))
        << texto.toStdString();
    EXPECT_EQ(Codigos(Rut_Valido(12345678), 1), "1234512345");
    EXPECT_EQ(En_Carpeta(), QStringList({"a.bmp", "b.bmp", "c.bmp"})) << "a.bmp awaits grading";
    // Once the bad file is taken away, the next run stores the rest and grades everyone.
    QFile::remove(QDir(escaneo).filePath("b.bmp"));
    guion->Espera("Corrección de Pruebas");
    guion->Espera("Fin Coreccion");
    ASSERT_TRUE(Corre());
    EXPECT_EQ(Guardadas(), 2);
    EXPECT_EQ(Valor("select count(*) from ResultadoAlumnos_rj").toInt(), 2);
    EXPECT_TRUE(En_Carpeta().isEmpty());
}

// A stop while grading (here the store refuses result rows) keeps the last stored sheet in the
// folder: the next run meets it again and grades every student.
TEST_F(Fallas, AStopWhileGradingLosesNoGrade) {
    Hoja("a.bmp", Hoja_Alumno(kLetras, 1, Rut_Valido(12345678)));
    Hoja("b.bmp", Hoja_Alumno(kLetras, 1, Rut_Valido(11222333)));
    Ejecuta(
        "create trigger lleno before insert on ResultadoAlumnos_rj "
        "begin select raise(abort, 'disco lleno'); end");
    guion->Espera("Error de ejecución");
    EXPECT_FALSE(Corre());
    EXPECT_EQ(Guardadas(), 2);
    EXPECT_EQ(En_Carpeta(), QStringList{"b.bmp"});
    Ejecuta("drop trigger lleno");
    guion->Espera("Corrección de Pruebas");
    guion->Espera("Fin Coreccion");
    ASSERT_TRUE(Corre());
    EXPECT_EQ(Valor("select count(*) from ResultadoAlumnos_rj where buenas = 10").toInt(), 2);
    EXPECT_EQ(Valor("select count(*) from respuesta_alumnos_por_rut").toInt(), 20);
    EXPECT_TRUE(En_Carpeta().isEmpty());
}

// A sheet counts as stored once its rows are committed. Here the commit of b's rows fails, as
// on a full disk (a deferred check that fails at commit stands for it).
TEST_F(Fallas, ASheetWhoseCommitFailsIsNeitherCountedNorRemoved) {
    Hoja("a.bmp", Hoja_Alumno(kLetras, 1, Rut_Valido(12345678)));
    Hoja("b.bmp", Hoja_Alumno(kLetras, 1, Rut_Valido(11222333)));
    Ejecuta("PRAGMA foreign_keys = ON");
    Ejecuta("create table padre (id integer primary key)");
    Ejecuta("create table hijo (id integer references padre(id) deferrable initially deferred)");
    Ejecuta(
        "create trigger lleno after insert on respuesta_alumnos_por_rut when "
        "new.rut_alumno = '" +
        Rut_Valido(11222333) + "' begin insert into hijo values (1); end");
    guion->Espera("Error de ejecución");
    EXPECT_FALSE(Corre());
    EXPECT_EQ(corrida->resumen.guardadas, 1);
    EXPECT_EQ(Guardadas(), 1);
    EXPECT_TRUE(En_Carpeta().contains("b.bmp"));
}

TEST_F(Fallas, AReadOnlySheetIsStoredOnceAndStopsTheRun) {
    Hoja("a.bmp", Hoja_Alumno(kLetras, 1, Rut_Valido(12345678)));
    Hoja("b.bmp", Hoja_Alumno(kLetras, 1, Rut_Valido(11222333)));
    Hoja("c.bmp", Hoja_Alumno(kLetras, 1, Rut_Valido(15222333)));
    const QString b = QDir(escaneo).filePath("b.bmp");
    QFile::setPermissions(b, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
    guion->Espera("Error de ejecución");
    EXPECT_FALSE(Corre());
    EXPECT_EQ(guion->cajas.back().texto,
              "No se pudo eliminar la hoja b.bmp de la carpeta de escaneo (archivo de solo lectura "
              "o en uso). Sus "
              "respuestas ya quedaron grabadas. Quítela de la carpeta antes de volver a corregir.");
    EXPECT_EQ(Codigos(Rut_Valido(11222333), 1), "1234512345") << "committed before the delete";
    EXPECT_EQ(En_Carpeta(), QStringList({"b.bmp", "c.bmp"}));
    // Read again, they are the same sheets (c was stored before b's turn to leave came):
    // replaced, never stored twice.
    QFile::setPermissions(b, QFile::ReadOwner | QFile::WriteOwner);
    guion->Espera("Corrección de Pruebas");
    guion->Espera("Corrección de Pruebas");
    guion->Espera("Fin Coreccion");
    ASSERT_TRUE(Corre());
    EXPECT_EQ(Valor("select count(*) from respuesta_alumnos_por_rut").toInt(), 30);
    EXPECT_EQ(Valor("select count(*) from ResultadoAlumnos_rj").toInt(), 3);
    EXPECT_TRUE(En_Carpeta().isEmpty());
}

TEST_F(Fallas, ScanerIniMissingOrShort) {
    struct Caso {
        const char* nombre;
        QByteArray contenido;  // empty: no file
        bool escanear;         // CmdCarga_Lee instead of CmdCorregir_Pruebas
        QString inicio;
    };
    const std::vector<Caso> casos = {
        {"sin archivo, corregir",
         {},
         false,
         "No se encuentra el archivo de configuración del escáner "},
        {"sin archivo, escanear",
         {},
         true,
         "No se encuentra el archivo de configuración del escáner "},
        {"sin programa", "/tmp\n", true,
         "El archivo scaner.ini no tiene la línea 2 (programa de escaneo)."},
        {"carpeta que no existe, corregir", "/no/existe\ntrue\n", false,
         "No existe la carpeta de escaneo \"/no/existe\". Revise la línea 1 de scaner.ini"},
        {"carpeta que no existe, escanear", "/no/existe\ntrue\n", true,
         "No existe la carpeta de escaneo \"/no/existe\""},
        {"programa que no existe", "/tmp\n/no/existe/escaner --lote\n", true,
         "No se pudo iniciar el programa de escaneo \"/no/existe/escaner --lote\" (línea 2 de "
         "scaner.ini)."},
    };
    for (const Caso& caso : casos) {
        SCOPED_TRACE(caso.nombre);
        Reinicia();
        QFile::remove(Ruta("scaner.ini"));
        if (!caso.contenido.isEmpty()) Escribe(Ruta("scaner.ini"), caso.contenido);
        corrida = std::make_unique<CorridaLectura>(&testigo);
        guion->Espera("Error de ejecución");
        EXPECT_FALSE(Ejecutar_Comando([&] {
            if (caso.escanear)
                corrida->CmdCarga_Lee();
            else
                corrida->CmdCorregir_Pruebas();
        }));
        EXPECT_TRUE(guion->cajas.back().texto.startsWith(caso.inicio))
            << guion->cajas.back().texto.toStdString();
    }
}

TEST_F(Fallas, ScanningEmptiesTheFolderOfBitmapsAndStartsTheProgram) {
    Hoja("vieja.bmp", Hoja_Alumno(kLetras, 1, Rut_Valido(12345678)));
    Hoja("OTRA.BMP", Hoja_Alumno(kLetras, 1, Rut_Valido(12345678)));
    Escribe(QDir(escaneo).filePath("nota.txt"), "x");
    const QString marca = Ruta("escaneando");
    Escribe(Ruta("scaner.ini"), (escaneo + "\ntouch " + marca + "\n").toUtf8());
    corrida = std::make_unique<CorridaLectura>(&testigo);
    ASSERT_TRUE(Ejecutar_Comando([&] { corrida->CmdCarga_Lee(); }));
    EXPECT_EQ(En_Carpeta(), QStringList{"nota.txt"});
    EXPECT_EQ(corrida->Carpeta, escaneo);
    QElapsedTimer reloj;
    reloj.start();
    while (!QFile::exists(marca) && reloj.elapsed() < 10000) QThread::msleep(20);
    EXPECT_TRUE(QFile::exists(marca)) << "the program of line 2 was started";
}
