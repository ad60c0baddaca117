# Test runs that the commit's check (./test.sh) makes in one of its two builds, or it would take longer than anyone
# waits. A list has runs, and programs with all of their runs; a program without a run is not built there, either.
# Presets, ./test.sh --all and a night (tools/night.sh) have all runs in every build.
include_guard(GLOBAL)

option(QUORLIN_ALL_RUNS "Also the test runs that the other of the check's two builds makes" ON)

# With the sanitizers alone: what ends, resets or unloads while something runs, the careless user, inputs that broke
# something once, and parts by themselves that are quick.
set(QUORLIN_RUNS_ONLY_address
    BackupFuzzReplay
    CalDocumentFuzzReplay
    CalibrationFlowTest
    CalibrationLifetimeTest
    CalibrationRemarksTest
    ClipboardFuzzReplay
    CommandFuzzReplay
    CoreThrowTest
    DecodeFuzzReplay
    EngineFuzzReplay
    EngineTest
    FlowFuzzReplay
    FormTest
    GuardedWriteTest
    HandsCampaign
    HandsCampaign.Seeds
    IniFuzzReplay
    LifetimeCampaign
    LifetimeTest
    ModelUnitTest
    PlanFuzzReplay
    ProfileFuzzReplay
    RecordFuzzReplay
    RequestProgressTest
    ResetInBusyTest
    ResultFilesTest
    RpcFuzzReplay
    RsrpLifetimeTest
    RunningTestEndTest
    ScenarioFuzzReplay
    SettingsFuzzReplay
    SimulatorConcurrencyTest
    SimulatorEnvironmentTest
    SimulatorTest
    SupportUnitTest
    TraceFuzzReplay
    TraceTest
    TxLifetimeTest
    ViewControllerTest)

# In the release build alone: what starts programs by the dozen, or works through tables of cases, documents, faults
# and cuts, or looks at the page, of which other runs meet the same code with the sanitizers.
set(QUORLIN_RUNS_ONLY_none
    AccessNamesTest
    AccessSignsTest
    AccessWindowsTest
    AnnouncementTest
    AnyFontTest
    AnyScreenTest
    AptProfilePageTest
    BenchBytesTest
    BenchPageTest
    CalCliTest
    CalCrashTest
    CalibrationCompareTest
    CalibrationCutTest.importCutInAnySectionLeavesWhatIsNotEdited
    CalibrationCutTest.readCutInAnyRoundLeavesWhatIsNotEdited
    CalibrationFlashTest
    CapabilityUnitTest
    ChangedCellsTest
    CliTest
    ControllerUnitTest
    EditUnderWayTest
    EmptyChoiceTest
    ExplainTest
    FaultCampaign.cal
    FaultCampaign.documents
    FaultCampaign.reach
    FaultCampaign.scenarios
    FilesTest
    FilledJsonTest
    KeyboardActionsTest
    KeyboardWalkTest
    ModelCheckTest
    OperationsUnitTest
    PageDocumentTest
    PageFocusTest
    PathLossPageTest
    Pictures
    PlanBytesTests
    PlanRunTests
    PlayBackTest
    PlotComparisonTest
    PlotTest
    PowerCut.apt-handset
    PowerCut.apt-odd
    PowerCut.rx-path-loss-handset
    PowerCut.rx-path-loss-odd
    PythonTest.describe
    PythonTest.serve
    RecipeTest
    RecordUndoTest
    ResetUndoTest
    ResultExportTest
    RsrpPageTest
    RsrpReportTest
    RssiLayoutTest
    ScriptTest
    SettingsBytesTest
    SoakTest
    StatusBarTest
    StrangerTest
    TxStartStopTest
    WindowLookTest
    WorkdaySoak)

# Whether this run of a program is left to the other build.
function(quorlin_runs_elsewhere out run program)
  set(elsewhere FALSE)
  if(NOT QUORLIN_ALL_RUNS)
    foreach(build address none)
      if(NOT QUORLIN_SANITIZE STREQUAL build
         AND (run IN_LIST QUORLIN_RUNS_ONLY_${build} OR program IN_LIST QUORLIN_RUNS_ONLY_${build}))
        set(elsewhere TRUE)
      endif()
    endforeach()
  endif()
  set(${out} ${elsewhere} PARENT_SCOPE)
endfunction()
