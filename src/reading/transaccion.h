// One sheet's store writes, all or none: committed by Confirma, rolled back when an error
// leaves the scope first.
#pragma once

#include "app/estado.h"
#include "platform/base_datos.h"

class Transaccion {
  public:
    Transaccion() { estado().BaseDatos->BeginTrans(); }
    ~Transaccion() {
        if (!confirmada_) estado().BaseDatos->Rollback();
    }
    Transaccion(const Transaccion&) = delete;
    Transaccion& operator=(const Transaccion&) = delete;

    void Confirma() {
        estado().BaseDatos->CommitTrans();
        confirmada_ = true;
    }

  private:
    bool confirmada_ = false;
};
