"""Which tests could notice a defect in a source, the source's own first."""
import dataclasses
import pathlib


@dataclasses.dataclass(frozen=True)
class Stage:
    """One run of a test program, in Wine or, where it is native, on this machine."""
    program: str
    filter: str = "*"
    native: bool = False
    apart: bool = False  # each test in a process of its own
    environment: tuple = ()

    def name(self):
        where = " natively" if self.native else ""
        return self.program + where + ("" if self.filter == "*" else " " + self.filter)


def module(filter):
    return Stage("module_tests", filter)


# By the beginning of a source's name; the first that fits counts.
OWN_TESTS = {
    "frame": {
        "help_viewer": Stage("help_tests", apart=True, environment=(("WINEDLLOVERRIDES", "hhctrl.ocx=n"),)),
        "module": module("*ifecycle*:*RunningApplication*:*ExtensionModule*:*AppUi*:*ToolLibrary*:*MachineSimulation*"),
        "saving": module("*Sav*"),
        "settings_locations": module("*SettingsLocation*"),
        "settings_reading": module("*Settings*"),
        "settings_texts": module("*Settings*"),
        "settings_values": module("*Settings*"),
        "tool_library": module("*ToolL*"),
        "locate": module("*ToolL*:*SettingsLocation*"),
        "number_text": Stage("expr_tests", "*Number*", native=True),
        "": Stage("saving_tests"),
    },
    "expr": {
        "expression_edits": Stage("expr_tests", "ExpressionEdits*:*Exchange*:*Prompt*"),
        "field_preview": Stage("expr_tests", "ExpressionEdits*:*Prompt*"),
        "": Stage("expr_tests", native=True),
    },
    "records": {
        "global_settings": Stage("review_tests", native=True),
        "": Stage("record_tests", native=True),
    },
    "pages": {
        "axis_points": module("*4x*:*5x*:*MultiAxis*:*Rotary*"),
        "chamfer_mill": module("*Chamfer*"),
        "control": module("*ZRough*:*ZFinish*:*OptionPage*"),
        "face_mill": module("*Face*"),
        "feature_mill": module("*FeatureMill*:*Chamfer*:*RoundMill*"),
        "field_leaving": Stage("proof_tests", "*Leaving*"),
        "flat_surface": module("*Flat*"),
        "groove": module("*Groove*"),
        "hole": module("*Hole*"),
        "lathe": module("*Lathe*:*Turning*"),
        "milling_2axis": module("*2x*:*2Axis*"),
        "milling_3axis": module("*3x*:*3Axis*"),
        "milling_4axis": module("*4x*:*MultiAxis*:*Rotary*"),
        "milling_5axis": module("*5x*:*MultiAxis*:*Rotary*"),
        "multi_axis": module("*4x*:*5x*:*MultiAxis*:*Rotary*"),
        "rotary": module("*Rotary*"),
        "round_mill": module("*RoundMill*"),
        "slot": module("*Slot*"),
        "tip": Stage("proof_tests", "*Tips*"),
        "topics": Stage("proof_tests", "*HelpOf*"),
        "wire_edm": module("*Edm*"),
        "z_finish": module("*ZFinish*"),
        "": module("*ZRough*:*ZFinish*:*OptionPage*:*Labels*"),
    },
    "dialogs": {
        "anchors": Stage("dialog_tests", "*Review*:*Layout*"),
        "default_tools": Stage("dialog_tests", "*Tool*"),
        "defaults_file": Stage("dialog_tests", "*DefaultsFile*:*Folder*"),
        "folder_browser": Stage("dialog_tests", "*DefaultsFile*:*Folder*"),
        "live_records": Stage("dialog_tests", "*DefaultsFile*:*Review*"),
        "nc_defaults": Stage("dialog_tests", "*NcDefaults*:*RestartQuestion*"),
        "review": Stage("dialog_tests", "*Review*"),
        "settings_review": Stage("dialog_tests", "*Review*"),
        "setup_sheet": Stage("dialog_tests", "*SetupSheet*"),
        "template_options": Stage("dialog_tests", "*Template*:*Folder*"),
        "": Stage("dialog_tests"),
    },
    "review": {"": Stage("review_tests", native=True)},
}

DIALOGS = Stage("dialog_tests")
MODULE = Stage("module_tests")
HELP = Stage("proof_tests", "*HelpOf*")
TIPS = Stage("proof_tests", "*Tips*")
PROOF = Stage("proof_tests", "-MonkeyTest.*:*KilledHost.*:*Tips*:*HelpOf*:*Soak*")
HOST = Stage("torvex_tests")
PLAIN = Stage("plain_host")

# What else could notice, the quickest first.
OTHER_TESTS = {
    "frame": [MODULE, DIALOGS, HELP, PROOF, HOST, PLAIN],
    "expr": [Stage("expr_tests"), MODULE, DIALOGS, PROOF],
    "records": [Stage("review_tests", native=True), Stage("help_text_tests", native=True), MODULE, DIALOGS, TIPS, PROOF],
    "pages": [MODULE, HELP, TIPS, PROOF, HOST],
    "dialogs": [DIALOGS, HELP, PROOF, HOST],
    "review": [DIALOGS],
}


def own_stage(folder, name):
    return next(stage for beginning, stage in OWN_TESTS[folder].items() if name.startswith(beginning))


def stages(path):
    folder, name = pathlib.PurePath(path).parts
    first = [own_stage(folder, name)]
    if folder == "records":
        first.append(own_stage("pages", name))  # the page's tests try the record, too
    return first + [stage for stage in OTHER_TESTS[folder] if stage not in first]


def all_stages():
    """Every stage once, for the run without a defect."""
    found = {}
    for folder, tests in OWN_TESTS.items():
        for stage in list(tests.values()) + OTHER_TESTS[folder]:
            found[stage] = True
    return list(found)
