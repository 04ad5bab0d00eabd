// The "cutstock" subcommands: the files of cutting-stock items in the library, which is open when
// they are called (standards/library.h).
#pragma once

#include <string>
#include <vector>

#include "cli/io/console.h"

namespace cli {

struct ListStockRequest {
    bool json = false;
};
ExitCode listStock(const ListStockRequest& request);

struct ShowStockRequest {
    std::string item;
    std::string file;  ///< empty: the newest of each kind
    bool json = false;
};
ExitCode showStock(const ShowStockRequest& request);

struct ImportStockRequest {
    std::string csv;
    std::string item;
    std::string kind;      ///< "shp" or "buy"
    std::string name;      ///< empty: the default name, which no file has
    bool force = false;    ///< replace a file that is there
    bool newItem = false;  ///< the item may be missing
};
ExitCode importStock(const ImportStockRequest& request);

struct ExportStockRequest {
    std::string item;
    std::string kind;
    std::string to = "-";
    std::string file;  ///< empty: the newest
    bool json = false;
};
ExitCode exportStock(const ExportStockRequest& request);

struct ReportStockRequest {
    std::vector<std::string> items;  ///< none: all of the library
    bool json = false;
};
ExitCode reportStock(const ReportStockRequest& request);

}  // namespace cli
