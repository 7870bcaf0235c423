#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "reports/graph_rows.h"
#include "screen/form.h"

/// The bars of all fields at once: a panel for each with the water of its root zone.
namespace veraqua {

/// A panel.
struct frmFieldGraph : Form {
    ProgressBar PBar;
    Label lbl_WaterContent;
    Label lbl_amount{" Water Content"};
    Label lbl_MAD;
    Label lbl_depl;
    Label lbl_k{"Value of k"};  ///< the field's row; never shown
    Button cmd_Select{"Select Field"};
};

FormTable TableOf(frmFieldGraph& form);

struct frmGraphs : Form {
    MenuItem m_sort{"Sort Order  "};
    MenuItem m_plant{"Sort by Planting Date", 2};
    MenuItem m_crop{"Sort by Crop Name", 2};
    MenuItem m_Field{"Sort by Field Name", 2};
    MenuItem m_irr{"Sort by Next Irr. Date", 2};
    MenuItem m_prior12{"Prior Field Set"};
    MenuItem m_next12{"Next Field Set"};
    MenuItem m_exit{"<-GO BACK"};

    std::vector<GraphRow> Rows;
    std::optional<GraphOrder> Order;  ///< that the user has chosen; nothing: that of the directory
    std::uint64_t Changes = 0;        ///< of the files and of today, that the rows were read with
    JulianValue Today = 0;
    int FirstShown = 0;  ///< of the sorted rows, from 1
    int LastShown = 0;
    std::vector<std::shared_ptr<frmFieldGraph>> Panels;  ///< by position; those with a field are `Shown`
};

FormTable TableOf(frmGraphs& form);

/// Shows the bars of all fields and hides the workbench, or tells that there are none.
void ShowFieldDisplays();

}  // namespace veraqua
