// Cuts a file between gateways, and counts the gateways whose rows are not adjacent.
#ifndef OSTREL_TOOLS_MAP_MAP_CUTTER_H
#define OSTREL_TOOLS_MAP_MAP_CUTTER_H

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "map/dump.h"
#include "read/cutter.h"

namespace ostrel::tool {

class MapCutter : public Cutter {
 public:
    // reading, and the map and the counter that it refers to, must outlive the cutter.
    MapCutter(FileFormat format, const Reading& reading);

    Cut cut(std::string_view bytes, bool is_end) override;

 private:
    void look(std::string_view bytes);
    void read_text(std::string_view text);
    void look_at(std::string_view text, std::size_t at);
    void begin_gateway(std::size_t at);

    FileFormat format_;
    const Reading* reading_;
    Reading plain_;
    std::unique_ptr<Cutter> cutter_;
    std::string preamble_;
    std::unique_ptr<Dump> dump_;
    std::string gateway_;
    bool is_in_gateway_ = false;  // rows of the current gateway have been seen, and more may follow
    std::size_t whole_ = 0;       // bytes at the front that are whole rows or objects
    std::size_t seen_ = 0;        // bytes at the front that have been read
    std::size_t begin_ = 0;       // where the incomplete gateway begins
};

}  // namespace ostrel::tool

#endif
