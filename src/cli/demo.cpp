// `zorta demo`: prepares, in the data folder, what a teacher has before pressing "Corregir
// Pruebas": a teacher, a subject, a course of students, a test of two forms with its keys, and
// the scanned sheets of the course in the scan folder of scaner.ini. `zorta corregir` then reads
// them.
#include "cli/demo.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QTextStream>

#include "app/estado.h"
#include "app/inicio.h"
#include "platform/base_datos.h"
#include "platform/dialogos_consola.h"
#include "platform/numeros.h"
#include "reading/escaner.h"
#include "reading/generador_hoja.h"
#include "store/contadores.h"
#include "store/rut.h"

namespace {

const char* const kAyuda =
    "Uso: zorta demo [--alumnos N]\n"
    "Prepara una demostración en la carpeta de datos: una profesora, una asignatura, un curso de\n"
    "N alumnos (por omisión 30), una prueba de 30 preguntas y 2 formas con sus pautas, y las\n"
    "hojas escaneadas del curso en la carpeta de escaneo de scaner.ini (se crea si falta). Una\n"
    "hoja trae un rut con el dígito verificador errado y otra no tiene la forma marcada.\n"
    "Al final escribe el número de la prueba: corríjala con  zorta corregir --prueba N\n";

constexpr int kPreguntas = 30;
const QString kCurso = QStringLiteral("2° Medio A");

BaseDatos& Base() {
    return *estado().BaseDatos;
}

// The scan folder of scaner.ini; a new scaner.ini points at "escaneo" in the data folder.
QString Carpeta_Escaneo() {
    const QString ini = Ruta_Scaner_Ini();
    if (!QFile::exists(ini)) {
        QFile f(ini);
        if (f.open(QIODevice::WriteOnly))
            f.write((QDir(Carpeta_Datos()).filePath(QStringLiteral("escaneo")) +
                     QStringLiteral("\ntrue\n"))
                        .toUtf8());
    }
    const QString carpeta = Linea_Scaner_Ini(1);
    QDir().mkpath(carpeta);
    return carpeta;
}

int16_t Crea_Prueba(const QString pautas[2]) {
    Base().Execute(QStringLiteral("insert into Profesores values ('Profesora Demostración', '1')"));
    Base().Execute(QStringLiteral("insert into Asignaturas values (?, 'Matemática')"),
                   {Maximo_Mas_Uno(QStringLiteral("Asignaturas"), QStringLiteral("idasignatura"))});
    const int16_t id = Siguiente_Indice(QStringLiteral("PRUEBA"));
    Base().Execute(
        QStringLiteral("insert into prueba_rj values (?, 'Ensayo de demostración', 'GENERAL', "
                       "'Profesora Demostración', 'Matemática', ?, 2, ?, ?, 0, 5, 'S', null)"),
        {id, kCurso, Fecha_Texto(QDate::currentDate()), kPreguntas});
    for (int forma = 1; forma <= 2; ++forma)
        for (int p = 1; p <= kPreguntas; ++p)
            Base().Execute(QStringLiteral("insert into Resp_preguntas_pautas values (?, ?, ?, ?)"),
                           {id, p, forma, pautas[forma - 1][p - 1].unicode() - 'A' + 1});
    return id;
}

// A student's sheet: about seven answers in ten right, now and then one left blank.
DisenoHoja Hoja(const QString& rut, int forma, const QString& pauta, QRandomGenerator& azar) {
    DisenoHoja d;
    if (forma) d.formas = {forma};
    d.rut = QString(rut).remove(QLatin1Char('-'));
    d.semilla = azar.generate();
    for (int p = 1; p <= kPreguntas; ++p) {
        const int suerte = azar.bounded(10);
        if (suerte == 9) continue;
        const int correcta = pauta[p - 1].unicode() - 'A' + 1;
        d.respuestas.push_back({p, suerte < 7 ? correcta : 1 + (correcta + suerte) % 5});
    }
    return d;
}

// The test, its course and the course's sheets in `carpeta`, stored all or none.
int16_t Prepara(int alumnos, const QString& carpeta) {
    QRandomGenerator azar(2026);
    QString pautas[2];
    for (QString& pauta : pautas)
        for (int p = 0; p < kPreguntas; ++p) pauta += QChar(u'A' + azar.bounded(5));
    Transaccion t(Base());
    const int16_t id = Crea_Prueba(pautas);
    for (int i = 1; i <= alumnos; ++i) {
        QString rut;
        for (qint64 cuerpo = 15000000 + 104729LL * i;
             rut.isEmpty() || rut.endsWith(QLatin1Char('K')); ++cuerpo)
            rut = Rut_Con_Digito(cuerpo);
        Base().Execute(QStringLiteral("insert into ALUMNOS values (?, ?, ?, '0')"),
                       {rut, QStringLiteral("Alumno %1").arg(i, 2, 10, QLatin1Char('0')), kCurso});
        const int forma = 1 + i % 2;
        // The second sheet carries a wrong check character, the third no form mark.
        const QString en_hoja =
            i == 2 ? rut.left(rut.size() - 1) + QChar(u'0' + (rut.back().digitValue() + 1) % 10)
                   : rut;
        Dibuja_Hoja(Hoja(en_hoja, i == 3 ? 0 : forma, pautas[forma - 1], azar))
            .Guarda_Bmp(QDir(carpeta).filePath(
                            QStringLiteral("hoja%1.bmp").arg(i, 3, 10, QLatin1Char('0'))),
                        1);
    }
    Base().Execute(QStringLiteral("insert into CURSOS values (?, 0, ?)"),
                   {kCurso, Siguiente_Indice(QStringLiteral("CURSO"))});
    t.Confirma();
    return id;
}

}  // namespace

int Cmd_Demo(const QStringList& args) {
    QTextStream salida(stdout);
    int alumnos = 30;
    if (args.contains(QLatin1String("--help"))) {
        salida << kAyuda;
        return 0;
    }
    if (!args.isEmpty()) {
        bool ok = args.size() == 2 && args[0] == QLatin1String("--alumnos");
        if (ok) alumnos = args[1].toInt(&ok);
        if (!ok || alumnos < 3 || alumnos > 200) {
            QTextStream(stderr) << kAyuda;
            return 2;
        }
    }
    Instala_Dialogos(std::make_unique<DialogosConsola>(salida));
    if (!MDIForm_Load()) return 1;
    const QString carpeta = Carpeta_Escaneo();
    const int16_t id = Prepara(alumnos, carpeta);
    salida << "Prueba " << id << " \"Ensayo de demostración\": " << alumnos << " hojas en "
           << QDir::toNativeSeparators(carpeta) << Qt::endl;
    return 0;
}
