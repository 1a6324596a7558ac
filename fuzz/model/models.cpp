#include "fuzz/model/model.h"

namespace ostrel::model {

const Models& models()
{
    static const Models all = [] {
        Models result;
        add_generic(result);
        add_wireless(result);
        return result;
    }();
    return all;
}

}  // namespace ostrel::model
