// Spanish explanations of the store engine's failures.
#include "platform/errores_base.h"

#include <QRegularExpression>
#include <QSqlError>

namespace {

const QRegularExpression kUnica(QStringLiteral("UNIQUE constraint failed: (\\w+)\\.(\\w+)"));

// The column that each `?` of an insert or update fills, in order; empty when unknown.
QStringList Columnas_De_Parametros(const QString& sql, const QStringList& columnas_tabla) {
    static const QRegularExpression con_lista(
        QStringLiteral("^\\s*insert\\s+into\\s+\\w+\\s*\\(([^)]*)\\)\\s*values\\s*\\(([^)]*)\\)"),
        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression sin_lista(
        QStringLiteral("^\\s*insert\\s+into\\s+\\w+\\s+values\\s*\\(([^)]*)\\)"),
        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression asignacion(QStringLiteral("(\\w+)\\s*=\\s*\\?"));
    auto todos_marcas = [](const QString& valores, qsizetype n) {
        const QStringList v = valores.split(QLatin1Char(','));
        if (v.size() != n) return false;
        for (const QString& x : v)
            if (x.trimmed() != QLatin1String("?")) return false;
        return true;
    };
    if (const auto m = con_lista.match(sql); m.hasMatch()) {
        QStringList cols = m.captured(1).split(QLatin1Char(','));
        for (QString& c : cols) c = c.trimmed();
        return todos_marcas(m.captured(2), cols.size()) ? cols : QStringList();
    }
    if (const auto m = sin_lista.match(sql); m.hasMatch())
        return todos_marcas(m.captured(1), columnas_tabla.size()) ? columnas_tabla : QStringList();
    if (sql.trimmed().startsWith(QLatin1String("update"), Qt::CaseInsensitive)) {
        QStringList cols;
        for (auto it = asignacion.globalMatch(sql); it.hasNext();) cols << it.next().captured(1);
        return cols;
    }
    return {};
}

QString Duplicado(const QRegularExpressionMatch& m, const QString& sql,
                  const QVariantList& parametros, const QStringList& columnas_tabla) {
    const QString tabla = m.captured(1);
    const QString columna = m.captured(2);
    const QStringList cols = Columnas_De_Parametros(sql, columnas_tabla);
    for (qsizetype i = 0; i < cols.size() && i < parametros.size(); ++i)
        if (cols[i].compare(columna, Qt::CaseInsensitive) == 0)
            return QStringLiteral("Ya existe en la tabla %1 un registro con %2 = '%3'.")
                .arg(tabla, columna, parametros[i].toString());
    return QStringLiteral("Ya existe en la tabla %1 un registro con el mismo %2.")
        .arg(tabla, columna);
}

QString Explicacion(const QString& motor) {
    static const QList<QPair<QString, QString>> kCasos = {
        {QStringLiteral("database or disk is full"),
         QStringLiteral("El disco está lleno: no se pudo grabar en la base de datos.")},
        {QStringLiteral("readonly database"),
         QStringLiteral("La base de datos es de solo lectura: no se pudo grabar en ella.")},
        {QStringLiteral("database is locked"),
         QStringLiteral(
             "La base de datos está ocupada por otro programa: ciérrelo e intente de nuevo.")},
        {QStringLiteral("malformed"), QStringLiteral("La base de datos está dañada.")},
        {QStringLiteral("not a database"), QStringLiteral("El archivo no es una base de datos.")},
        {QStringLiteral("no such table"), QStringLiteral("A la base de datos le falta una tabla.")},
        {QStringLiteral("no such column"),
         QStringLiteral("A la base de datos le falta una columna.")},
        {QStringLiteral("disk I/O error"),
         QStringLiteral("No se pudo leer o grabar el archivo de la base de datos.")},
        {QStringLiteral("unable to open"),
         QStringLiteral("No se pudo leer o grabar el archivo de la base de datos.")},
    };
    for (const auto& [clave, texto] : kCasos)
        if (motor.contains(clave, Qt::CaseInsensitive)) return texto;
    return QStringLiteral("Error en la base de datos.");
}

}  // namespace

QString Tabla_Duplicada(const QSqlError& error) {
    return kUnica.match(error.databaseText()).captured(1);
}

QString Explica_Error_Base(const QSqlError& error, const QString& sql,
                           const QVariantList& parametros, const QStringList& columnas_tabla) {
    const QString motor = error.text().trimmed();
    const auto unica = kUnica.match(error.databaseText());
    const QString explicacion =
        unica.hasMatch() ? Duplicado(unica, sql, parametros, columnas_tabla) : Explicacion(motor);
    return QStringLiteral("%1\nDetalle: %2 (%3)").arg(explicacion, motor, sql.simplified());
}
