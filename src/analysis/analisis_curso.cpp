// The course analysis: grade bands compared as texts and their shares.
#include "analysis/analisis_curso.h"


#include "analysis/analisis_pregunta.h"
#include "app/estado.h"
#include "platform/base_datos.h"
#include "platform/error_ejecucion.h"
#include "platform/numeros.h"

namespace {

bool Entera(int banda) {
    return banda == 4 || banda == 8 || banda == 12;
}

// Bounds as the default texts of the numbers 1, 1.5, 1.51, 2, ... 6.51, 7.
struct Limites {
    const char* desde;
    const char* hasta;
};
constexpr Limites kLimites[kBandas] = {
    {"1", "1.5"},    {"1.51", "2"}, {"2.01", "2.5"}, {"2.51", "3"}, {"3.01", "3.5"}, {"3.51", "4"},
    {"4.01", "4.5"}, {"4.51", "5"}, {"5.01", "5.5"}, {"5.51", "6"}, {"6.01", "6.5"}, {"6.51", "7"},
};

}  // namespace

const QStringList& Rangos_Bandas() {
    static const QStringList rangos = {"1.00 - 1.50", "1.51 - 2.00", "2.01 - 2.50", "2.51 - 3.00",
                                       "3.01 - 3.50", "3.51 - 4.00", "4.01 - 4.50", "4.51 - 5.00",
                                       "5.01 - 5.50", "5.51 - 6.00", "6.01 - 6.50", "6.51 - 7.00"};
    return rangos;
}

const QStringList& Etiquetas_Grafico_Bandas() {
    static const QStringList etiquetas = [] {
        QStringList e = Rangos_Bandas();
        e[7] = QStringLiteral("4.51 ,5.00");
        return e;
    }();
    return etiquetas;
}

int Banda_Nota(const QString& nota) {
    for (int b = 0; b < kBandas; ++b)
        if (nota.compare(QLatin1String(kLimites[b].desde)) >= 0 &&
            nota.compare(QLatin1String(kLimites[b].hasta)) <= 0)
            return b + 1;
    return 0;
}

QString Texto_Nota(const QVariant& nota) {
    if (nota.isNull()) throw ErrorEjecucion(QStringLiteral("Uso no válido de Null"));
    const bool numero = nota.typeId() == QMetaType::Double ||
                        nota.typeId() == QMetaType::LongLong || nota.typeId() == QMetaType::Int;
    const QString texto = numero ? CStr(nota.toDouble()) : nota.toString();
    return QString(texto).replace(QLatin1Char(','), QLatin1Char('.'));
}

void ConteoBandas::Suma(int banda) {
    double& c = cuenta_[banda - 1];
    c = Entera(banda) ? CInt(c + 1) : c + 1;
}

double ConteoBandas::Total() const {
    double t = 0;
    for (double c : cuenta_) t += c;
    return t;
}

QString ConteoBandas::Porcentaje(int banda) const {
    const double c = Cuenta(banda);
    if (c == 0) return QStringLiteral("0 %");
    const double producto = Entera(banda) ? CInt(c * 100) : c * 100;
    return CStr(Round(producto / Total(), 2)) + QStringLiteral(" %");
}

TablasCurso::TablasCurso() {
    const QStringList cabezas = {QStringLiteral("Rango"), QStringLiteral("Alumnos"),
                                 QStringLiteral("Porcentaje"), QString(), QString()};
    for (int c = 1; c <= 5; ++c) SprResulprucargada.FijaCelda(0, c, cabezas[c - 1]);
    for (int r = 1; r <= kBandas; ++r) {
        SprResulprucargada.FijaCelda(r, 1, Rangos_Bandas()[r - 1]);
        SprResulprucargada.FijaCelda(r, 2, QStringLiteral("0"));
        SprResulprucargada.FijaCelda(r, 3, QStringLiteral("0"));
    }
}

void TablasCurso::Carga_Prueba() {
    Estado& e = estado();
    Recordset rs = e.BaseDatos->OpenRecordset(
        QStringLiteral("select * from prueba_rj  where idprueba = ?"), {e.Id_Prueba_Actual});
    if (rs.Eof()) return;
    e.Nombre_Prueba_Actual = rs[1].toString();
    e.Profesor_Actual = rs[3].toString();
    e.Asignatura_Actual = rs[4].toString();
    e.Curso_Actual = rs[5].toString();
}

void TablasCurso::Carga_Curso() {
    Estado& e = estado();
    if (e.Profesor_Actual.isEmpty()) Carga_Prueba();
    for (int r = 1; r <= kBandas; ++r) {
        SprResulprucargada.FijaCelda(r, 2, QString());
        SprResulprucargada.FijaCelda(r, 3, QString());
    }
    ConteoBandas conteo;
    Recordset rs = e.BaseDatos->OpenRecordset(
        QStringLiteral(" SELECT NOTA From ResultadoAlumnos_rj Where IDPRUEBA = ?"),
        {e.Id_Prueba_Actual});
    for (; !rs.Eof(); rs.MoveNext())
        if (const int banda = Banda_Nota(Texto_Nota(rs["NOTA"]))) conteo.Suma(banda);
    MSChart1.chartType = GraficoLineas2D;
    std::vector<std::vector<double>> datos;
    for (int b = 1; b <= kBandas; ++b) datos.push_back({conteo.Cuenta(b)});
    MSChart1.ChartData(Etiquetas_Grafico_Bandas(), datos);
    MSChart1.chartType = GraficoBarras2D;
    MSChart1.Refresh();
    Llena_Grilla(conteo);
}

void TablasCurso::Llena_Grilla(const ConteoBandas& conteo) {
    for (int r = 1; r <= kBandas; ++r) {
        SprResulprucargada.FijaCelda(r, 2, CStr(conteo.Cuenta(r)));
        SprResulprucargada.FijaCelda(r, 3, conteo.Porcentaje(r));
    }
    // The test's identity in column 5, the grid's last.
    Agrega_Datos_Prueba(SprResulprucargada);
}
