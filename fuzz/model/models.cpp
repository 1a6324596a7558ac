#include "fuzz/model/model.h"

namespace ostrel::model {

const Models& models()
{
    static const Models all = [] {
        Models result;
        add_generic(result);
        add_wireless(result);
        add_hosts(result);
        add_lan(result);
        add_management(result);
        add_time(result);
        add_branding(result);
        return result;
    }();
    return all;
}

}  // namespace ostrel::model
