// The store engine over Qt SQL and SQLite.
#include "platform/base_datos.h"

#include <sqlite3.h>

#include <QAtomicInt>
#include <QSqlDriver>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QUrl>
#include <set>

#include "platform/error_ejecucion.h"
#include "platform/errores_base.h"
#include "platform/orden_espanol.h"

namespace {

// The handles open now, so that the command boundary can settle each of them. Never
// destroyed, so that a handle closed late at exit still finds it.
std::set<BaseDatos*>& Abiertas() {
    static auto* abiertas = new std::set<BaseDatos*>;
    return *abiertas;
}

QStringList Columnas(const QSqlDatabase& db, const QString& tabla) {
    QStringList columnas;
    if (tabla.isEmpty()) return columnas;
    const QSqlRecord r = db.record(tabla);
    for (int i = 0; i < r.count(); ++i) columnas << r.fieldName(i);
    return columnas;
}

[[noreturn]] void Falla(const QSqlDatabase& db, const QSqlError& error, const QString& sql,
                        const QVariantList& parametros = {}) {
    throw ErrorEjecucion(
        Explica_Error_Base(error, sql, parametros, Columnas(db, Tabla_Duplicada(error))));
}

QSqlQuery Prepara(const QSqlDatabase& db, const QString& sql, const QVariantList& parametros) {
    QSqlQuery q(db);
    q.setForwardOnly(true);
    if (!q.prepare(sql)) Falla(db, q.lastError(), sql);
    // A text is never NULL: an empty box is stored as an empty text, as the statements write it.
    for (const QVariant& p : parametros)
        q.addBindValue(p.typeId() == QMetaType::QString && p.toString().isNull()
                           ? QVariant(QStringLiteral(""))
                           : p);
    if (!q.exec()) Falla(db, q.lastError(), sql, parametros);
    return q;
}

int Cotejo_Espanol(void*, int largo_a, const void* a, int largo_b, const void* b) {
    return Compara_Espanol(QString::fromUtf8(static_cast<const char*>(a), largo_a),
                           QString::fromUtf8(static_cast<const char*>(b), largo_b));
}

// Names order as a Spanish reader expects wherever a statement says "collate ESPANOL".
void Registra_Orden_Espanol(const QSqlDatabase& db) {
    const QVariant h = db.driver()->handle();
    sqlite3* s = h.isValid() ? *static_cast<sqlite3* const*>(h.data()) : nullptr;
    if (!s || sqlite3_create_collation(s, "ESPANOL", SQLITE_UTF8, nullptr, Cotejo_Espanol) != 0)
        throw ErrorEjecucion(QStringLiteral("No se pudo preparar el orden de los nombres"));
}

bool Es_Nombre_De_Tabla(const QString& texto) {
    for (const QChar c : texto)
        if (!(c.isLetterOrNumber() || c == QLatin1Char('_'))) return false;
    return !texto.isEmpty();
}

}  // namespace

void Recordset::Close() {
    filas_.clear();
    fila_ = 0;
}

int Recordset::Posicion(const QString& nombre) const {
    for (int i = 0; i < columnas_.size(); ++i)
        if (columnas_[i].compare(nombre, Qt::CaseInsensitive) == 0) return i;
    throw ErrorEjecucion(QStringLiteral("El campo %1 no existe en esta consulta.").arg(nombre));
}

QVariant Recordset::operator[](int posicion) const {
    if (posicion < 0 || posicion >= columnas_.size())
        throw ErrorEjecucion(
            QStringLiteral("El campo %1 no existe en esta consulta.").arg(posicion));
    return Eof() ? QVariant() : filas_[fila_].at(posicion);
}

QVariant Recordset::operator[](const QString& nombre) const {
    return (*this)[Posicion(nombre)];
}

void Recordset::AddNew() {
    if (tabla_.isEmpty())
        throw ErrorEjecucion(
            QStringLiteral("Solo una tabla abierta por su nombre admite filas nuevas."));
    nuevos_campos_.clear();
    nuevos_valores_.clear();
}

void Recordset::Fija(const QString& campo, const QVariant& valor) {
    Posicion(campo);  // an unknown field fails here, as the assignment would
    nuevos_campos_ << campo;
    nuevos_valores_ << valor;
}

void Recordset::Update() {
    QStringList marcas;
    for (qsizetype i = 0; i < nuevos_campos_.size(); ++i) marcas << QStringLiteral("?");
    base_->Execute(
        QStringLiteral("insert into %1 (%2) values (%3)")
            .arg(tabla_, nuevos_campos_.join(QLatin1Char(',')), marcas.join(QLatin1Char(','))),
        nuevos_valores_);
    nuevos_campos_.clear();
    nuevos_valores_.clear();
}

BaseDatos::BaseDatos(QString ruta, QString conexion)
    : ruta_(std::move(ruta)), conexion_(std::move(conexion)) {
    Abiertas().insert(this);
}

BaseDatos::~BaseDatos() {
    Abiertas().erase(this);
    try {
        Asienta();
    } catch (const ErrorEjecucion&) {
        // What could not be settled stays in the journal, which the next opening reads.
    }
    {
        QSqlDatabase d = db();
        d.close();
    }
    QSqlDatabase::removeDatabase(conexion_);
}

QSqlDatabase BaseDatos::db() const {
    return QSqlDatabase::database(conexion_, false);
}

std::shared_ptr<BaseDatos> BaseDatos::OpenDatabase(const QString& ruta, Apertura modo) {
    static QAtomicInt contador;
    const QString conexion = QStringLiteral("zorta_%1").arg(contador.fetchAndAddRelaxed(1));
    std::shared_ptr<BaseDatos> base(new BaseDatos(ruta, conexion));
    {
        QSqlDatabase d = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), conexion);
        if (modo == Apertura::Consulta) {
            QUrl url = QUrl::fromLocalFile(ruta);
            url.setQuery(QStringLiteral("immutable=1"));
            d.setDatabaseName(url.toString(QUrl::FullyEncoded));
            d.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY;QSQLITE_OPEN_URI"));
        } else {
            d.setDatabaseName(ruta);
            d.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=5000"));
        }
        if (!d.open())
            throw ErrorEjecucion(QStringLiteral("No se pudo abrir la base de datos %1: %2")
                                     .arg(ruta, d.lastError().text()));
    }
    Registra_Orden_Espanol(base->db());
    // Reading the journal mode touches the file header: a file that is not a store fails here.
    try {
        if (modo == Apertura::Consulta)
            base->OpenRecordset(QStringLiteral("select count(*) from sqlite_master"));
        else
            base->Execute(modo == Apertura::Trabajo ? QStringLiteral("PRAGMA journal_mode=WAL")
                                                    : QStringLiteral("PRAGMA journal_mode=DELETE"));
        if (modo != Apertura::Consulta) base->Execute(QStringLiteral("PRAGMA synchronous=FULL"));
    } catch (const ErrorEjecucion& e) {
        throw ErrorEjecucion(
            QStringLiteral("No se pudo abrir la base de datos %1: %2").arg(ruta, e.texto()));
    }
    return base;
}

int BaseDatos::Execute(const QString& sql, const QVariantList& parametros) {
    escrita_ = true;
    QSqlQuery q = Prepara(db(), sql, parametros);
    const int filas = q.numRowsAffected();
    q.finish();
    return filas;
}

Recordset BaseDatos::OpenRecordset(const QString& sql_o_tabla, const QVariantList& parametros) {
    Recordset rs;
    rs.base_ = this;
    QString sql = sql_o_tabla;
    if (Es_Nombre_De_Tabla(sql_o_tabla.trimmed())) {
        rs.tabla_ = sql_o_tabla.trimmed();
        sql = QStringLiteral("select * from ") + rs.tabla_;
    }
    QSqlQuery q = Prepara(db(), sql, parametros);
    const QSqlRecord registro = q.record();
    const int n = registro.count();
    for (int i = 0; i < n; ++i) rs.columnas_ << registro.fieldName(i);
    while (q.next()) {
        QVariantList fila;
        fila.reserve(n);
        for (int i = 0; i < n; ++i) fila << q.value(i);
        rs.filas_.push_back(std::move(fila));
    }
    q.finish();
    return rs;
}

Recordset BaseDatos::OpenTable(const QString& tabla) {
    if (!Es_Nombre_De_Tabla(tabla))
        throw ErrorEjecucion(QStringLiteral("Nombre de tabla no válido: %1").arg(tabla));
    Recordset rs = OpenRecordset(QStringLiteral("select * from %1 limit 0").arg(tabla));
    rs.tabla_ = tabla;
    return rs;
}

bool BaseDatos::TableExists(const QString& nombre) {
    Recordset rs = OpenRecordset(
        QStringLiteral(
            "select name from sqlite_master where type = 'table' and lower(name) = lower(?)"),
        {nombre});
    return !rs.Eof();
}

void BaseDatos::CompactDatabase(const QString& destino) {
    Execute(QStringLiteral("VACUUM INTO ?"), {destino});
}

void BaseDatos::BeginTrans() {
    if (!db().transaction()) Falla(db(), db().lastError(), QStringLiteral("BEGIN"));
    en_transaccion_ = true;
}

void BaseDatos::CommitTrans() {
    if (!db().commit()) Falla(db(), db().lastError(), QStringLiteral("COMMIT"));
    en_transaccion_ = false;
}

void BaseDatos::Rollback() {
    db().rollback();
    en_transaccion_ = false;
}

// A truncating checkpoint: the store file gets every committed change and the journal is
// emptied, so the file alone is a complete copy.
void BaseDatos::Asienta() {
    if (!escrita_ || en_transaccion_) return;
    // The first field is 1 when another handle kept the checkpoint from finishing.
    const Recordset rs = OpenRecordset(QStringLiteral("PRAGMA wal_checkpoint(TRUNCATE)"));
    escrita_ = rs[0].toInt() != 0;
}

void BaseDatos::Asienta_Todas() {
    for (BaseDatos* base : Abiertas()) base->Asienta();
}

BaseDatos& ManijaBase::operator*() const {
    if (!base_)
        throw ErrorEjecucion(
            QStringLiteral("La base de datos está cerrada: cierre Zorta y vuelva a abrirlo."));
    return *base_;
}

Transaccion::Transaccion(BaseDatos& base) : base_(base) {
    base_.BeginTrans();
}

Transaccion::~Transaccion() {
    if (!confirmada_) base_.Rollback();
}

void Transaccion::Confirma() {
    base_.CommitTrans();
    confirmada_ = true;
}
