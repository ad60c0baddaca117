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
    CalibrationCompareEndTest
    CalibrationFlowTest
    CalibrationLifetimeTest
    CalibrationRemarksTest
    ClipboardFuzzReplay
    CommandFuzzReplay
    CoreThrowTest
    DecodeFuzzReplay
    EngineFuzzReplay
    EngineTest
    ExpectationsTest
    FaultCampaign.rx
    FaultCampaign.tx
    FlowFuzzReplay
    FormTest
    GuardedWriteEndTest
    GuardedWriteTest
    HandsCampaign
    HandsCampaign.Seeds
    HostDeviceTest
    IniFuzzReplay
    LifetimeCampaign
    LifetimeTest
    ModelUnitTest
    PlanFuzzReplay
    PlanTest
    ProfileFuzzReplay
    RecordFuzzReplay
    RequestProgressTest
    ResetInBusyTest
    ResultFilesTest
    RfOffTest
    RpcFuzzReplay
    RsrpLifetimeTest
    RssiLifetimeTest
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

# In the release build alone: what starts programs by the dozen, works through tables of cases, documents, faults and
# cuts, or looks at what a page shows, sends and keeps. Campaigns and ends meet the same code with the sanitizers.
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
    BenchPressTest
    CalCliTest
    CalCrashTest
    CalibratedRssiTest
    CalibrationCompareTest
    CalibrationCutTest.importCutInAnySectionLeavesWhatIsNotEdited
    CalibrationCutTest.readCutInAnyRoundLeavesWhatIsNotEdited
    CalibrationFilesTest
    CalibrationFlashTest
    CapabilityUnitTest
    ChangedCellsTest
    CliTest
    ContRxChoicesTest
    ContRxCommandTest
    ContRxPageTest
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
    FrequencyEntryTest
    KeyboardActionsTest
    KeyboardWalkTest
    LateEditorsDocumentTest
    LateEditorsTest
    ModelCheckTest
    OperationsUnitTest
    PageDocumentTest
    PageFocusTest
    PageSettingsTest
    PageUndoTest
    PathLossFlashTest
    PathLossGainKeysTest
    PathLossPageTest
    Pictures
    PlanBytesTests
    PlanRunTests
    PlayBackTest
    PlotComparisonTest
    PlotHandsTest
    PlotTest
    PowerCut.apt-handset
    PowerCut.apt-odd
    PowerCut.rx-path-loss-handset
    PowerCut.rx-path-loss-odd
    PuschTxForcedPageTest
    PuschTxNormalPageTest
    PythonTest.bench
    PythonTest.describe
    PythonTest.serve
    RecipeTest
    RecordUndoTest
    ResetUndoTest
    ResultCopyTest
    ResultExportTest
    ResultMarkTest
    RsrpCounterTest
    RsrpPageTest
    RsrpReportTest
    RssiCalculatorTest
    RssiCommandTest
    RssiExportTest
    RssiLayoutTest
    RssiPageTest
    RssiResultTest
    RunningInputsTest
    ScriptTest
    SessionLogWindowTest
    SettingsBytesTest
    SingleTonePageTest
    SoakTest
    StatusBarTest
    StrangerTest
    StrayWheelTest
    TableMarksTest
    TxPowerLimitTest
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
