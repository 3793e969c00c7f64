// `zorta corregir --prueba N [--carpeta DIR] [--agregar] [--pauta]`: the reading run of the
// screen "Formulario Corrector" on the command line. Every box is printed with its title and
// answered by a fixed policy that never deletes stored data.
#include "cli/corregir.h"

#include <QDir>
#include <QTextStream>

#include "app/estado.h"
#include "app/inicio.h"
#include "cli/cli.h"
#include "grading/correccion_alumnos.h"
#include "grading/escala_notas.h"
#include "platform/base_datos.h"
#include "platform/dialogos_consola.h"
#include "platform/numeros.h"
#include "reading/corrida_lectura.h"
#include "reading/escaner.h"

namespace {

const char* const kAyuda =
    "Uso: zorta corregir --prueba N [--carpeta DIR] [--agregar] [--pauta]\n"
    "Corrige sin ventanas las hojas escaneadas de la prueba N: lee cada hoja de la carpeta de\n"
    "escaneo (línea 1 de scaner.ini, en la carpeta de datos), la graba en la base de datos, la\n"
    "quita de la carpeta y al final calcula las notas, como \"Corregir Pruebas\".\n\n"
    "  --prueba N     número de la prueba (obligatorio)\n"
    "  --carpeta DIR  lee las hojas de DIR en vez de la carpeta de scaner.ini\n"
    "  --agregar      agrega las hojas a la corrección ya hecha (\"Agregar a la actual\")\n"
    "  --pauta        las hojas son la pauta de la prueba, una por forma\n"
    "  --help         muestra esta ayuda\n\n"
    "Cada mensaje se escribe con su título entre corchetes y se contesta solo, sin borrar\n"
    "nada de lo grabado:\n"
    "  - \"Corrección de Pruebas\" (el rut ya existe, ¿reemplazarlo?): Aceptar; la hoja nueva\n"
    "    reemplaza a la grabada (Cancelar borraría también la grabada).\n"
    "  - \"Correccion de prueba\" (¿eliminar esta prueba?): Cancelar; la hoja se graba con el\n"
    "    rut tal como quedó. Solo cuando el rut es válido pero no está en ALUMNOS se contesta\n"
    "    Aceptar, porque no hay otra salida sin un operador.\n"
    "  - \"Seleccione Rut Alumno\": ningún rut.\n"
    "  - los demás: Aceptar, o Cancelar/No cuando el mensaje pregunta.\n"
    "Las hojas que la corrida quita sin grabarlas (fallas de lectura, rut de un alumno que no\n"
    "existe) no se borran: se mueven a la subcarpeta no_guardadas de la carpeta de escaneo.\n"
    "Si la prueba tiene alumnos con respuestas grabadas y sin nota (una corrida interrumpida\n"
    "antes de calcular las notas), al final calcula también sus notas y lo dice.\n"
    "Al terminar escribe cuántas hojas se leyeron, se guardaron y fallaron.\n\n"
    "Estado de salida: 0 si la corrida recorrió toda la carpeta, 1 si se detuvo antes (un\n"
    "mensaje que termina la corrida o un error), 2 si los argumentos no son válidos.\n";

// The console policy, with the two answers of the reading run that keep stored data.
class DialogosCorregir : public DialogosConsola {
  public:
    explicit DialogosCorregir(QTextStream& salida) : DialogosConsola(salida) {
        Responde(QStringLiteral("Corrección de Pruebas"), vbOK);
    }
    int MsgBox(const QString& texto, int estilo, const QString& titulo) override {
        if (titulo == QLatin1String("Verifica Nombre por Rut")) rut_desconocido_ = true;
        if (titulo == QLatin1String("Correccion de prueba")) {
            Responde(titulo, rut_desconocido_ ? vbOK : vbCancel);
            rut_desconocido_ = false;
        }
        return DialogosConsola::MsgBox(texto, estilo, titulo);
    }

  private:
    bool rut_desconocido_ = false;
};

// Prints the sheet in hand.
class ObservadorConsola : public ObservadorCorrida {
  public:
    explicit ObservadorConsola(QTextStream& salida) : salida_(salida) {}
    void Hoja_En_Mano(const CorridaLectura& corrida, const Imagen&) override {
        salida_ << "Hoja " << corrida.lbl_Leidas << " de " << corrida.lbl_CantidadHojas << ": "
                << QDir::toNativeSeparators(corrida.Ruta_Hoja) << Qt::endl;
    }

  private:
    QTextStream& salida_;
};

struct Argumentos {
    int prueba = 0;
    QString carpeta;
    bool agregar = false;
    bool pauta = false;
};

bool Lee_Argumentos(const QStringList& args, Argumentos& a) {
    for (int i = 0; i < args.size(); ++i) {
        bool ok = true;
        if (args[i] == QLatin1String("--prueba"))
            a.prueba = args.value(++i).toInt(&ok);
        else if (args[i] == QLatin1String("--carpeta"))
            ok = !(a.carpeta = args.value(++i)).isEmpty();
        else if (args[i] == QLatin1String("--agregar"))
            a.agregar = true;
        else if (args[i] == QLatin1String("--pauta"))
            a.pauta = true;
        else
            ok = false;
        if (!ok) return false;
    }
    return a.prueba > 0 && a.prueba <= 32767;
}

// The test becomes the current one, as choosing it on the test list does.
bool Elige_Prueba(const Argumentos& a) {
    Estado& e = estado();
    Recordset rs = e.BaseDatos->OpenRecordset(
        QStringLiteral(
            "select NombrePrueba, curso, Numero_Forma, Pregunta_Seleccion, Numero_Alternativas "
            "from prueba_rj where IdPrueba = ?"),
        {a.prueba});
    if (rs.Eof()) return false;
    e.Id_Prueba_Actual = CInt(a.prueba);
    e.Nombre_Prueba_Actual = rs[0].toString();
    e.Curso_Actual = rs[1].toString();
    e.Numero_Formas_Actual = CInt(rs[2].toDouble());
    e.Ptje_Max_Actual = e.Preguntas_Actual = CInt(rs[3].toDouble());
    e.Alternativas_Actual = rs[4].toInt() > 0 ? CInt(rs[4].toDouble()) : int16_t(5);
    e.Seteo_Hoja = false;
    e.Corrige_Pruebas = !a.pauta;  // a key run reads "Grabar Matriz": a key needs its form
    e.Agrega_Actual = a.agregar;
    e.Lee_Pauta = a.pauta;
    return true;
}

// Students stored by a run that stopped before its grading get their grades now.
void Completa_Notas(Corrector& c, QTextStream& salida) {
    Transaccion t(*estado().BaseDatos);
    Calcula_Notas_Tabla(c.Notas);
    const int corregidos = Completa_Correccion(c);
    t.Confirma();
    if (corregidos > 0)
        salida << "Se calcularon las notas de " << corregidos
               << " alumnos que tenían respuestas grabadas y no tenían nota (una corrida "
                  "interrumpida)."
               << Qt::endl;
}

}  // namespace

int Cmd_Corregir(const QStringList& args) {
    static QTextStream salida(stdout);
    QTextStream err(stderr);
    if (Pide_Ayuda(args, kAyuda)) return 0;
    Argumentos a;
    if (!Lee_Argumentos(args, a)) {
        err << "zorta corregir: opciones no válidas\n" << kAyuda;
        return 2;
    }
    Instala_Dialogos(std::make_unique<DialogosCorregir>(salida));
    if (!MDIForm_Load()) return 1;
    if (!Elige_Prueba(a)) {
        err << "zorta corregir: no existe la prueba " << a.prueba << "\n";
        return 1;
    }
    ObservadorConsola observador(salida);
    CorridaLectura corrida(&observador);
    bool completa = false;
    const bool sin_error = Ejecutar_Comando([&] {
        if (!corrida.Form_Load()) return;
        corrida.Carpeta_Forzada = a.carpeta;
        corrida.Carpeta_Apartadas = QDir(a.carpeta.isEmpty() ? Linea_Scaner_Ini(1) : a.carpeta)
                                        .filePath(QStringLiteral("no_guardadas"));
        corrida.CmdCorregir_Pruebas();
        completa = corrida.resumen.completa;
        if (completa && !a.pauta) Completa_Notas(corrida.c, salida);
    });
    const ResumenCorrida& r = corrida.resumen;
    salida << "Hojas leídas: " << r.leidas << ", guardadas: " << r.guardadas
           << ", fallidas: " << r.fallidas << Qt::endl;
    return sin_error && completa ? 0 : 1;
}
