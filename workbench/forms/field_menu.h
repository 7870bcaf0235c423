#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "reports/forms/shown_field.h"
#include "screen/form.h"

/// The field workbench: the hub of all that concerns one field. It picks or begins a field, and its menu leads to the
/// runs, the water, the cuttings, the adjustments, the reports and the harvest.
namespace veraqua {

struct frmField : Form {
    frmField() { Caption = "Welcome to Veraqua - Main Field Menu"; }

    // Picking a field
    Label lblField{"Select Field"};
    ComboBox ComboField;
    Button cmd_Cancel{"Cancel"};

    // A new field
    Label lblCrops{"Select crop to be planted"};
    ComboBox comboCrops;
    Label Lbl_Soils{"Select Soil Format"};
    ComboBox Combo_Soils;
    Label lbl_initialize{"Enter crop info >>>"};
    Button cmd_OK{"OK"};

    // The field that is shown
    Label lbl_selected{"You have selected the following field:"};
    Label lbl_ID;
    Label lbl_crop;
    Label lbl_plantdate;
    Label lbl_weather;
    Label lbl_more1{"Click on Field Options|Details for comprehensive field data and predictions."};
    Label lbl_more2{"Click on other Field Options menu items for updating irrigation, cutting dates, etc."};
    Button cmd_Summary{"Field Summary"};
    Button cmdDetails{"Field Details"};
    Label lblChange;  ///< what the last adjustment did to the prediction

    // How the field in work stands, whatever else is shown
    Label lblDepletion;
    Label lblNext;  ///< when to irrigate it next, and how much
    Label lblLastRain;
    Label lblLastIrrigation;
    Chart Chart1;  ///< its season, in the place of the picture

    // Depletion
    Frame ShapeDepl;
    Label lblDeplVal;
    Label lbl_reset{"Reset Depl. to Original Value:"};
    Label lblRootWater;
    Label lblNewDepl{"New Depletion Value (%):"};
    TextBox TxtNewDepl;
    Button cmdDeplOK{"OK"};
    Button cmdDeplCanc{"Cancel"};
    Button cmd_Reset{"RESET"};

    // Management allowed depletion
    Frame ShapeMAD;
    Label lblCurrMAD;
    Label lblNewMAD{"New MAD Value (%):"};
    TextBox txtNewMAD;
    Label lblCurrMADC;
    Label lblNewMADC{"New Critical MAD Value (%):"};
    TextBox txtNewMADC;
    Button cmdMADOK{"OK"};
    Button cmdMADCanc{"Cancel"};

    // Irrigation efficiency
    Frame ShapeIRR;
    Label lblCurrIRR;
    Label lblNewIRR{"New Irr. Efficiency Value (%):"};
    TextBox TxtNewIRR;
    Button cmdIRROK{"OK"};
    Button cmdIRRCanc{"Cancel"};

    Label lbl_wait{"Please be patient - Reading && Sorting Report Data"};

    // Always there
    Button cmd_return{"Main Menu"};
    StatusBar StatusBar1;
    Image Image1;
    Image Image2;
    Image Image3;

    // The menu
    MenuItem m_displays{"Field Displays  "};
    MenuItem mnuInit{"Field Selection"};
    MenuItem mnuSelect{"Select Existing Field", 2};
    MenuItem mnuNew{"Add New Field", 2};
    MenuItem mnuDelete{"Harvest/Delete Selected Field", 2};
    MenuItem mnuRestore{"Restore Harvested Field", 2};
    MenuItem mnuEdit{" Field Options"};
    MenuItem MnuPred{"Run Predictions", 2};
    MenuItem mnuAdd{"Add Water (Rainfall && Irrigation)", 2};
    MenuItem mnuCuts{"Enter Cutting Dates (Hay Only)", 2};
    MenuItem mnu_MAD{"Change Management Allowed Depletion (MAD)", 2};
    MenuItem mnuIEffic{"Change Irrigation Efficiency", 2};
    MenuItem mnuDepletion{"Change Field Depletion", 2};
    MenuItem mnuFieldSummary{"Field Summary", 2};
    MenuItem mnuFieldDetails{"Field Details", 2};
    MenuItem mnuSeasonChart{"Season Chart", 2};
    MenuItem mnuRep{" Field Reports"};
    MenuItem mnuIrrSchedule{"Irrigation Schedule (for all fields)", 2};
    MenuItem m_iprint{"Print Report", 3};
    MenuItem m_isave{"Save to Disk", 3};
    MenuItem mnuFieldReport{"Field Report (for selected field)", 2};
    MenuItem m_prt_print{"Print Report", 3};
    MenuItem m_rpt_disk{"Save to Disk", 3};
    MenuItem m_rpt_display{"Screen Display", 3};
    MenuItem mnuHarvested{"Print Field Report (for harvested/deleted field)", 2};
    MenuItem mconfig{"Configure"};
    MenuItem mbackground{"Select Background", 2};
    MenuItem mgeese1{"Geese (standing)", 3};
    MenuItem mgeese2{"Geese (flying)", 3};
    MenuItem mfield{"Field and Trees", 3};
    MenuItem mblank{"Blank Screen", 3};
    MenuItem mnuReturn{" <-GO BACK"};

    // What the workbench remembers
    ShownField Shown;                   ///< what its state is shown of
    bool PictureChosen = false;         ///< since the field was taken up, and so shown in the place of its season
    int CropPicked = 0;                 ///< row of the crop table, from 1; 0: none
    bool SoilPicked = false;            ///< a soil format has been picked
    bool DeletePending = false;         ///< the user was sent to pick the field to harvest
    bool RestorePending = false;        ///< likewise the backup to restore
    std::vector<std::string> FieldIds;  ///< as listed in `ComboField`
    std::vector<std::string> Backups;   ///< file names, likewise while a harvested field is to be picked
};

FormTable TableOf(frmField& form);

/// Hides every input and display of the workbench and forgets what was picked.
void form_clear(frmField& form);

/// The same, and names no field in the title and the status bar.
void ShowNoField(frmField& form);

/// Lists the fields in use for picking.
void ListFields(frmField& form);

/// Shows the field in work on the labels, the status bar and the window's title.
void FieldInfo(frmField& form);

/// Shows the summary of the field in work, without waiting for it.
void ShowFieldData();

}  // namespace veraqua
