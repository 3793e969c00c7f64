// The store engine: one SQLite file opened through Qt SQL. Values always travel as bound
// parameters; a failed statement is an ErrorEjecucion at the caller.
#pragma once

#include <QSqlDatabase>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantList>
#include <memory>
#include <vector>

class BaseDatos;

// The rows of a query, walked with Eof/MoveNext; fields by name (case-blind) or by position
// from 0. A recordset opened on a plain table name also adds rows with AddNew/Fija/Update.
class Recordset {
  public:
    Recordset() = default;

    bool Eof() const { return fila_ >= filas_.size(); }
    void MoveNext() { ++fila_; }
    void MoveFirst() { fila_ = 0; }
    void Close();
    int RecordCount() const { return static_cast<int>(filas_.size()); }
    int FieldCount() const { return static_cast<int>(columnas_.size()); }
    const QString& FieldName(int posicion) const { return columnas_.at(posicion); }

    // The field of the current row; a null value past the end or for a null field.
    QVariant operator[](int posicion) const;
    QVariant operator[](const QString& nombre) const;
    QVariant operator[](const char* nombre) const { return (*this)[QString::fromUtf8(nombre)]; }

    void AddNew();
    void Fija(const QString& campo, const QVariant& valor);
    void Update();

  private:
    friend class BaseDatos;
    int Posicion(const QString& nombre) const;

    BaseDatos* base_ = nullptr;
    QString tabla_;
    QStringList columnas_;
    std::vector<QVariantList> filas_;
    size_t fila_ = 0;
    QStringList nuevos_campos_;
    QVariantList nuevos_valores_;
};

// One unit of store writes, all or none: committed by Confirma, rolled back when an error
// leaves the scope first.
class Transaccion {
  public:
    explicit Transaccion(BaseDatos& base);
    ~Transaccion();
    Transaccion(const Transaccion&) = delete;
    Transaccion& operator=(const Transaccion&) = delete;
    void Confirma();

  private:
    BaseDatos& base_;
    bool confirmada_ = false;
};

// How a store file is opened: for work (WAL journal), to build a new store under a temporary
// name (a plain rollback journal, so the finished file stands alone), or only to look at it
// (read-only and immutable: not one byte of the file or beside it is written).
enum class Apertura { Trabajo, Creacion, Consulta };

class BaseDatos {
  public:
    // Opens (or creates) the store file; ErrorEjecucion when it can't be opened as a store.
    static std::shared_ptr<BaseDatos> OpenDatabase(const QString& ruta,
                                                   Apertura modo = Apertura::Trabajo);
    // Closes after moving every stored change into the store file itself.
    ~BaseDatos();
    BaseDatos(const BaseDatos&) = delete;
    BaseDatos& operator=(const BaseDatos&) = delete;

    // Runs one statement; `?` placeholders take `parametros` in order. Rows affected.
    int Execute(const QString& sql, const QVariantList& parametros = {});
    // A query, or the whole table when given a plain table name.
    Recordset OpenRecordset(const QString& sql_o_tabla, const QVariantList& parametros = {});
    // A table opened to add rows: its columns, without reading its rows.
    Recordset OpenTable(const QString& tabla);
    bool TableExists(const QString& nombre);
    // Writes a compacted copy of the store to `destino` (which must not exist).
    void CompactDatabase(const QString& destino);

    // Groups statements so that a sheet's rows are stored all or none.
    void BeginTrans();
    void CommitTrans();
    void Rollback();

    // Moves what was written since the last call from the journal into the store file, so
    // that a copy of the file alone holds it. Does nothing inside a transaction.
    void Asienta();
    // The same for every open store; the command boundary calls it after each command.
    static void Asienta_Todas();

    const QString& Ruta() const { return ruta_; }

  private:
    BaseDatos(QString ruta, QString conexion);
    QSqlDatabase db() const;

    QString ruta_;
    QString conexion_;
    bool escrita_ = false;
    bool en_transaccion_ = false;
};

// The shared handle on the store: used like a pointer, but a use while the store is closed is
// a run-time error with its words, never a crash.
class ManijaBase {
  public:
    ManijaBase() = default;
    ManijaBase(std::shared_ptr<BaseDatos> base) : base_(std::move(base)) {}  // NOLINT
    BaseDatos* operator->() const { return &**this; }
    BaseDatos& operator*() const;
    explicit operator bool() const { return base_ != nullptr; }
    BaseDatos* get() const { return base_.get(); }
    void reset() { base_.reset(); }

  private:
    std::shared_ptr<BaseDatos> base_;
};
