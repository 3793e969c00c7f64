// Helpers of the reading run tests.
#include "apoyo_corrida.h"

#include <QDir>
#include <QFile>

#include "app/estado.h"
#include "platform/base_datos.h"
#include "platform/dialogos.h"
#include "platform/dialogos_consola.h"
#include "store/rut.h"

QString Rut_Valido(int cuerpo) { return Rut_Con_Digito(cuerpo); }

QString Columnas_Rut(const QString& rut) {
    return QString(rut).remove(QLatin1Char('-'));
}

DisenoHoja Hoja_Alumno(const std::string& letras, int forma, const QString& rut, int distancia) {
    DisenoHoja d;
    d.distancia = distancia;
    if (forma) d.formas = {forma};
    d.rut = Columnas_Rut(rut);
    for (size_t q = 0; q < letras.size(); ++q) {
        const int pregunta = int(q) + 1;
        if (letras[q] == 'N') {
            d.respuestas.push_back({pregunta, 1});
            d.respuestas.push_back({pregunta, 3});
        } else if (letras[q] >= 'A' && letras[q] <= 'E') {
            d.respuestas.push_back({pregunta, letras[q] - 'A' + 1});
        }
    }
    return d;
}

QString Codigos_Alumno(const std::string& letras) {
    QString s;
    for (const char l : letras)
        s += l == '.' ? QLatin1Char('6') : l == 'N' ? QLatin1Char('7') : QChar('1' + (l - 'A'));
    return s;
}

void CorridaPrueba::SetUp() {
    BaseArrancada::SetUp();
    escaneo = Ruta(QStringLiteral("escaneo"));
    ASSERT_TRUE(QDir().mkpath(escaneo));
    QFile ini(Ruta(QStringLiteral("scaner.ini")));
    ASSERT_TRUE(ini.open(QIODevice::WriteOnly));
    ini.write((escaneo + QStringLiteral("\ntrue\n")).toUtf8());
}

void CorridaPrueba::TearDown() {
    corrida.reset();
    BaseTemporal::TearDown();
    static QString descartadas;
    static QTextStream nulo(&descartadas);
    descartadas.clear();
    Instala_Dialogos(std::make_unique<DialogosConsola>(nulo));
}

void CorridaPrueba::Reinicia() {
    testigo = Testigo{};
    TearDown();
    QDir(carpeta.path()).removeRecursively();
    QDir().mkpath(carpeta.path());
    SetUp();
}

void CorridaPrueba::Prueba(int formas, int preguntas, const QString& ingreso_pauta) {
    Ejecuta(QStringLiteral("insert into prueba_rj values (?, 'Historia', 'GENERAL', 'Ana Rojas', "
                           "'Historia', '1A', ?, "
                           "'02-03-2026', ?, 0, 5, ?, ?)"),
            {kPrueba, formas, preguntas, ingreso_pauta, formas});
    Estado& e = estado();
    e.Id_Prueba_Actual = kPrueba;
    e.Numero_Formas_Actual = int16_t(formas);
    e.Preguntas_Actual = e.Ptje_Max_Actual = int16_t(preguntas);
    e.Alternativas_Actual = 5;
    e.Curso_Actual = QStringLiteral("1A");
    e.Corrige_Pruebas = true;
}

void CorridaPrueba::Pauta(int forma, const std::string& letras) {
    for (size_t i = 0; i < letras.size(); ++i)
        Ejecuta(QStringLiteral("insert into Resp_preguntas_pautas values (?, ?, ?, ?)"),
                {kPrueba, int(i) + 1, forma, letras[i] - 'A' + 1});
}

void CorridaPrueba::Alumno(const QString& rut, const QString& curso) {
    Ejecuta(QStringLiteral("insert into ALUMNOS values (?, ?, ?, '')"),
            {rut, QStringLiteral("Alumno ") + rut, curso});
}

void CorridaPrueba::Hoja(const QString& nombre, const DisenoHoja& d) {
    Dibuja_Hoja(d).Guarda_Bmp(QDir(escaneo).filePath(nombre));
}

bool CorridaPrueba::Corre() {
    corrida = std::make_unique<CorridaLectura>(&testigo);
    if (!corrida->Form_Load()) return false;
    return Ejecutar_Comando([this] { corrida->CmdCorregir_Pruebas(); });
}

void CorridaPrueba::Ejecuta(const QString& sql, const QVariantList& p) {
    estado().BaseDatos->Execute(sql, p);
}

QString CorridaPrueba::Codigos(const QString& rut, int forma) {
    return Valor(
               QStringLiteral("select group_concat(alternativa, '') from (select alternativa from "
                              "respuesta_alumnos_por_rut where rut_alumno = ? and forma = ? order "
                              "by pregunta)"),
               {rut, forma})
        .toString();
}

QStringList CorridaPrueba::Resultado(const QString& rut) {
    Recordset rs = estado().BaseDatos->OpenRecordset(
        QStringLiteral("select Buenas, Malas, Omitidas, Nulas, Porcentaje, Nota, Forma from "
                       "ResultadoAlumnos_rj "
                       "where rut = ? order by forma"),
        {rut});
    QStringList filas;
    for (; !rs.Eof(); rs.MoveNext()) {
        QStringList f;
        for (int i = 0; i < 7; ++i) f << rs[i].toString();
        filas << f.join(QLatin1Char('/'));
    }
    return filas;
}

QStringList CorridaPrueba::En_Carpeta() const {
    return QDir(escaneo).entryList(QDir::Files, QDir::Name);
}

QStringList CorridaPrueba::Cajas() const {
    QStringList r;
    for (const auto& c : guion->cajas) r << c.titulo + QLatin1Char('|') + c.texto;
    return r;
}
