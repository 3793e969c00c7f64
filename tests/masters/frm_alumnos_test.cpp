// FrmAlumnos: the save by hand and its checks, the delete and its cascade, the search, and the
// load of a list that replaces the students and the courses.
#include "masters/screens/frm_alumnos.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>

#include "apoyo_maestros.h"
#include "platform/screens/lista_clave.h"
#include "store/rut.h"

namespace {

class Alumnos : public Maestros {
  protected:
    void Curso(const QString& curso) { Valor("insert into CURSOS values (?, 1, 1)", {curso}); }
    void Llena(FrmAlumnos& f, const QString& rut, const QString& nombre, int curso) {
        f.TxtRut->setText(rut);
        f.TxtNombre->setText(nombre);
        f.CboCurso->setCurrentIndex(curso);
    }
    int Cuenta(const QString& tabla) { return Valor("select count(*) from " + tabla).toInt(); }
    // A list loaded through the file choice; the load ends with a box titled `titulo`.
    void Carga(FrmAlumnos& f, const QString& ruta, const QString& titulo) {
        guion->EsperaArchivo(ruta);
        guion->Espera(titulo);
        f.CmdCarga_Click();
    }
};

TEST_F(Alumnos, SaveChecksInOrderAndWritesNothingOnRefusal) {
    Curso("4° MEDIO A");
    struct Caso {
        const char *rut, *nombre;
        int curso;
        const char *titulo, *texto;
    };
    const std::vector<Caso> casos = {
        {"", "", -1, "Mantenedores en general", "Debe ingresar el Nombre del alumno"},
        {"", "ANA", -1, "Mantenedores en general", "Debe ingresar el Rut del alumno"},
        {"12345678-4", "ANA", -1, "Mantenedores en general", "Debe ingresar el Curso del alumno"},
        {"12345678-4", "ANA", 0, "Aceptar", "Rut ingresado no es valido"},
        {"12345678-5 ", "ANA", 0, "Aceptar", "Rut ingresado no es valido"},
    };
    for (const Caso& c : casos) {
        FrmAlumnos f;
        Llena(f, c.rut, c.nombre, c.curso);
        guion->Espera(c.titulo);
        f.XPButAceptar_Click();
        EXPECT_EQ(guion->cajas.back().texto, c.texto);
    }
    EXPECT_EQ(Cuenta("ALUMNOS"), 0);
}

// The check letter typed in lower case is stored in capitals.
TEST_F(Alumnos, SaveNewThenReplaceKeepsApostropheAndCutsCourse) {
    Curso("4° MEDIO A");
    FrmAlumnos f;
    Llena(f, "1000005-k", "D'ALESSANDRO", 0);
    guion->Espera("Mantención Alumnos");
    f.XPButAceptar_Click();
    EXPECT_EQ(guion->cajas[0].texto, "El Alumno se ha creado con éxito en la base de datos");
    EXPECT_EQ(Filas("select * from ALUMNOS"), QStringList{"1000005-K|D'ALESSANDRO|4° MEDIO A|0"});
    EXPECT_EQ(f.SprAlumnos.MaxRows(), 1);
    EXPECT_TRUE(f.TxtRut->text().isEmpty() && f.TxtNombre->text().isEmpty() &&
                f.TxtCurso->text().isEmpty());

    Llena(f, "1000005-k", "OTRO NOMBRE", 0);
    guion->Espera("Mantención Alumnos", vbCancel);
    f.XPButAceptar_Click();
    EXPECT_EQ(guion->cajas[1].texto, "El alumno existe en la base de datos, desea reemplazarlo");
    EXPECT_EQ(Valor("select PRIMERAPELLIDO from ALUMNOS").toString(), "D'ALESSANDRO");

    Llena(f, "1000005-k", "OTRO NOMBRE", 0);
    guion->Espera("Mantención Alumnos", vbOK);
    guion->Espera("Mantención Alumnos");
    f.XPButAceptar_Click();
    EXPECT_EQ(guion->cajas[3].texto,
              "El alumno 1000005-K se ha creado con éxito en la base de datos");
    EXPECT_EQ(Filas("select * from ALUMNOS"), QStringList{"1000005-K|OTRO NOMBRE|4° MEDIO A|0"});
}

TEST_F(Alumnos, DeleteAsksTwiceAndTakesAnswersAndResults) {
    Valor(
        "insert into ALUMNOS values ('5126663-3', 'ANA', '4A', 0), ('12345678-5', 'LUIS', '4A', "
        "0)");
    Valor(
        "insert into respuesta_alumnos_por_rut values (1, 1, 1, 2, '5126663-3'), (1, 1, 1, 2, "
        "'12345678-5')");
    Valor("insert into ResultadoAlumnos_rj values (1, '5126663-3', 1, 0, 0, 0, 1, 7, 0, 100, 1)");
    FrmAlumnos f;
    guion->Espera("Mantenedor Alumno");
    f.XPButElimina_Click();
    EXPECT_EQ(guion->cajas[0].texto, "No se ha seleccionado ningún Alumno");

    f.SprAlumnos_Click(1);
    ASSERT_EQ(f.TxtRut->text(), "5126663-3");
    guion->Espera("Confirmación", vbOK);
    guion->Espera("Confirmación", vbCancel);
    f.XPButElimina_Click();
    EXPECT_EQ(Cuenta("ALUMNOS"), 2);

    f.txtBuscaRut->setText("5");
    guion->Espera("Confirmación", vbOK);
    guion->Espera("Confirmación", vbOK);
    guion->Espera("Registro eliminado");
    f.XPButElimina_Click();
    EXPECT_EQ(guion->cajas[1].texto, "¿Desea eliminar Alumno Nº 5126663-3\rdesde base de datos?");
    EXPECT_EQ(guion->cajas[4].texto,
              "¿Realmente esta SEGURO de ELIMINAR este Alumno Nº 5126663-3 desde la base de "
              "datos? \r¡¡¡ No se podrán recuperar datos !!!");
    EXPECT_EQ(guion->cajas[5].texto, "El Alumno ha sido eliminado");
    EXPECT_EQ(Filas("select rut from ALUMNOS"), QStringList{"12345678-5"});
    EXPECT_EQ(Filas("select rut_alumno from respuesta_alumnos_por_rut"), QStringList{"12345678-5"});
    EXPECT_EQ(Cuenta("ResultadoAlumnos_rj"), 0);
    EXPECT_TRUE(f.txtBuscaRut->text().isEmpty());
    EXPECT_EQ(f.SprAlumnos.MaxRows(), 1);
}

TEST_F(Alumnos, SearchFromTheStartOfTheRut) {
    Valor(
        "insert into ALUMNOS values ('5126663-3', 'ANA', '4A', 0), ('12345678-5', 'LUIS', '4A', "
        "0), "
        "('1512666-K', 'EVA', '4B', 0)");
    FrmAlumnos f;
    const std::vector<std::pair<const char*, QStringList>> casos = {
        {"5", {"5126663-3"}},
        {"1", {"12345678-5", "1512666-K"}},
        {"1234", {"12345678-5"}},
        {"%", {}},  // typed characters, never wildcards
        {"1_3", {}},
        {"9", {}},
        {"", {}}};
    for (const auto& [texto, ruts] : casos) {
        f.txtBuscaRut->setText(texto);
        QStringList vistos;
        for (int i = 1; i <= f.SprAlumnos.MaxRows(); ++i) vistos << f.SprAlumnos.Celda(i, 1);
        EXPECT_EQ(vistos, ruts) << texto;
    }
}

TEST_F(Alumnos, RutBoxLetsOnlyRutKeysThrough) {
    FrmAlumnos f;
    f.TxtRut->setFocus();
    Teclea(f.TxtRut, "12.345-k a7K");
    EXPECT_EQ(f.TxtRut->text(), "12345-k7K");
    Teclea(f.TxtNombre, "josé");
    EXPECT_EQ(f.TxtNombre->text(), "JOSÉ");
}

TEST_F(Alumnos, LoadOf45StudentsRebuildsTheCourses) {
    Valor("insert into ALUMNOS values ('5126663-3', 'ANTIGUO', 'VIEJO', 0)");
    Valor("insert into CURSOS values ('VIEJO', 3, 9)");
    FrmAlumnos f;
    Carga(f, Lista("alumnos_45.xlsx"), "Mantenedor de Alumnos");
    EXPECT_EQ(guion->cajas.back().texto, "Se han insertado 45 alumnos");
    EXPECT_EQ(Cuenta("ALUMNOS"), 45);
    EXPECT_EQ(f.SprAlumnos.MaxRows(), 45);
    // The comma is taken out of the rut, the apostrophe out of the name; C and D as typed.
    EXPECT_EQ(
        Filas("select * from ALUMNOS where rut in ('12345678-5', '10000014-8', '1230', "
              "'10000028-8', '10000035-0') order by rut"),
        QStringList({"10000014-8|OHIGGINS RIQUELME BERNARDO|2° MEDIO A|2",
                     "10000028-8|ALUMNO 04|1° MEDIO B|=1+1", "10000035-0|ALUMNO 05|2° MEDIO A|5.5",
                     "1230|ALUMNO 03|1° MEDIO A|3", "12345678-5|ALUMNO 01|1° MEDIO B|1"}));
    EXPECT_EQ(Filas("select * from CURSOS"), Filas("select curso, 0, row_number() over () from "
                                                   "(select distinct curso from alumnos)"));
    EXPECT_EQ(Cuenta("CURSOS"), 3);
    EXPECT_EQ(
        Valor("select count(*) from CURSOS where idnivel = 0 and idcurso between 1 and 3").toInt(),
        3);
    ASSERT_EQ(f.CboCurso->count(), 3);
    // The list shows the course alone; the procedures still read the item with its key.
    const QString curso = Valor("select curso from CURSOS where idcurso = 1").toString();
    EXPECT_EQ(f.CboCurso->itemText(0), curso);
    EXPECT_EQ(Item_Lista(*f.CboCurso, 0), curso + QString(200, ' ') + "@0 1");
}

TEST_F(Alumnos, BadRutAtRow500UndoesTheWholeLoad) {
    Valor("insert into ALUMNOS values ('5126663-3', 'ANTIGUO', 'VIEJO', 0)");
    Valor("insert into CURSOS values ('VIEJO', 3, 9)");
    FrmAlumnos f;
    Carga(f, Lista("alumnos_600_rut_malo.xlsx"), "Aceptar");
    EXPECT_EQ(guion->cajas.back().texto,
              "Rut leido desde planilla no es correcto \rFila : 500\rRut :20000500-1");
    EXPECT_EQ(guion->cajas.back().estilo, vbCritical);
    EXPECT_EQ(Cuenta("ALUMNOS"), 0);
    EXPECT_EQ(Cuenta("CURSOS"), 0) << "the old courses stay deleted";
    EXPECT_EQ(f.SprAlumnos.MaxRows(), 0);
}

TEST_F(Alumnos, FileChoiceAndListEnds) {
    FrmAlumnos f;
    guion->EsperaArchivo("");
    guion->Espera("Mantenedor de Alumnos");
    f.CmdCarga_Click();
    EXPECT_EQ(guion->cajas.back().texto, "No se ha seleccionado ningún archivo");
    guion->EsperaArchivo(Escribe("lista.csv", "5126663-3,ANA,4A\n"));
    guion->Espera("Mantenedor de Profesores");
    f.CmdCarga_Click();
    EXPECT_EQ(guion->cajas.back().texto, "El archivo seleccionado no es extensión TXT, verifique");
    EXPECT_EQ(guion->cajas.back().estilo, vbCritical);

    // ".XLS" anywhere in the name lets a text list through; a blank cell A ends the list.
    Carga(f,
          Escribe("lista.XLS.txt",
                  "5126663-3,ANA,4A,x\n1000005-K,EVA,4B\n   ,NO,4C\n12345678-5,LUIS,4A\n"),
          "Mantenedor de Alumnos");
    EXPECT_EQ(guion->cajas.back().texto, "Se han insertado 2 alumnos");
    EXPECT_EQ(Filas("select curso from CURSOS order by idcurso"), QStringList({"4A", "4B"}));

    Carga(f, Escribe("vacia.xls.csv", ",ANA,4A\n5126663-3,EVA,4B\n"), "Mantenedor de Alumnos");
    EXPECT_EQ(guion->cajas.back().texto, "Se han insertado 0 alumnos");
    EXPECT_EQ(Cuenta("ALUMNOS") + Cuenta("CURSOS"), 0);
}

TEST_F(Alumnos, FailuresAfterTheDeletesKeepWhatWasStored) {
    Valor("insert into ALUMNOS values ('5126663-3', 'ANTIGUO', 'VIEJO', 0)");
    FrmAlumnos f;
    // The same rut twice: the second insert fails at the key; the first row stays.
    EXPECT_FALSE(Comando([&] {
        Carga(f,
              Escribe("doble.xls.csv", "1000005-K,EVA,4B\n12345678-5,LUIS,4A\n1000005-K,OTRA,4B\n"),
              "Error de ejecución");
    }));
    EXPECT_EQ(Filas("select rut from ALUMNOS order by rut"),
              QStringList({"1000005-K", "12345678-5"}));
    EXPECT_EQ(Cuenta("CURSOS"), 0);
    // A file that can't be opened fails after the deletes.
    guion->Espera("Error de ejecución");
    EXPECT_FALSE(Comando([&] { f.Carga_Masiva_Por_Archivo(Ruta("no_existe.xlsx")); }));
    EXPECT_EQ(Cuenta("ALUMNOS"), 0);
    // A damaged workbook (its shared texts cut short after 22 students) loads none of them.
    QByteArray filas, textos;
    for (int i = 0; i < 45; ++i) {
        filas += QStringLiteral("<row r=\"%1\"><c r=\"A%1\" t=\"s\"><v>%2</v></c></row>")
                     .arg(i + 1)
                     .arg(i)
                     .toUtf8();
        textos += "<si><t>" + Rut_Con_Digito(10000000 + i).toUtf8() + "</t></si>";
    }
    Escribe_Xlsx(Ruta("danada.xlsx"), filas, "<sst>" + textos.left(textos.size() / 2));
    guion->Espera("Error de ejecución");
    EXPECT_FALSE(Comando([&] { f.Carga_Masiva_Por_Archivo(Ruta("danada.xlsx")); }));
    EXPECT_TRUE(guion->cajas.back().texto.contains(Ruta("danada.xlsx")));
    EXPECT_EQ(Cuenta("ALUMNOS"), 0);
}

}  // namespace
