// The one instance of the shared values.
#include "app/estado.h"

#include "platform/base_datos.h"

Estado& estado() {
    static Estado e;
    return e;
}
