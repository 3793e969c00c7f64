// What every list load shares: the file choice behind `CmdCarga`, the second store handle a
// load works through, and the replacement of a whole table by the rows of a list's first sheet.
#pragma once

#include <QString>
#include <functional>
#include <memory>

#include "platform/base_datos.h"
#include "platform/planilla_lectura.h"

// The words of one screen's file choice.
struct EleccionPlanilla {
    QString filtro;         // of the open dialog
    QString titulo;         // of both refusals
    QString sin_archivo;    // no file chosen
    QString sin_extension;  // a name without ".XLS"
    QString titulo_sin_archivo = titulo;
};

// The dialog "Seleccione un archivo"; the information box when nothing is chosen; the stop box
// when the name, in capitals, holds no ".XLS" anywhere. The path to load, or "".
QString Elige_Planilla(const EleccionPlanilla& eleccion);
// The choice of the axes and skills screens: .xlsx files, with their own two refusals.
QString Elige_Planilla_Xlsx(const QString& titulo);

// A second handle on the store file, its statements in one transaction that is committed when
// the handle goes, whatever happened: what a load stored before a failure stays stored.
class SegundaBase {
  public:
    SegundaBase();
    ~SegundaBase();
    SegundaBase(const SegundaBase&) = delete;
    SegundaBase& operator=(const SegundaBase&) = delete;
    BaseDatos* operator->() const { return base_.get(); }
    BaseDatos& operator*() const { return *base_; }

  private:
    std::shared_ptr<BaseDatos> base_;
};

// Stores one row of a list; the row number (from 1) is also the row's running number.
using InsertaFila = std::function<void(BaseDatos&, const PlanillaLectura&, int fila)>;

// Runs `borra`, then stores rows 1 to `limite` of the first sheet, ending at the first empty
// cell A. The number of rows stored.
int Reemplaza_Con_Planilla(const QString& ruta, const QString& borra, int limite,
                           const InsertaFila& inserta);
