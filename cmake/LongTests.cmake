# Runs of more than about 20 seconds with the sanitizers: with them in both builds, the commit's check would
# take longer than anyone waits. Each has the label "long" in the build that it is not for; ./test.sh leaves
# that label out there, ./test.sh --all and a night (tools/night.sh) run all of them in both.
include_guard(GLOBAL)

# With the sanitizers alone: what ends, resets or unloads while something runs, and the careless user.
set(QUORLIN_LONG_RUNS_address
    CalibrationFlowTest
    CalibrationLifetimeTest
    CalibrationRemarksTest
    GuardedWriteTest
    HandsCampaign
    LifetimeCampaign
    LifetimeTest
    RequestProgressTest
    ResetInBusyTest
    RsrpLifetimeTest
    RunningTestEndTest
    TxLifetimeTest)

# In the release build alone: what starts programs by the dozen, or works through tables of cases, documents,
# faults and cuts, of which other runs meet the same code with the sanitizers.
set(QUORLIN_LONG_RUNS_none
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
    ExplainTest
    FaultCampaign.cal
    FaultCampaign.documents
    FaultCampaign.reach
    FaultCampaign.scenarios
    FilledJsonTest
    HostStateTest
    KeyboardActionsTest
    OperationsUnitTest
    PageDocumentTest
    PageFocusTest
    PathLossPageTest
    PlanRunTests.--gtest_filter=CheckTest*
    PlanRunTests.--gtest_filter=EndSignalTest*
    PlanRunTests.--gtest_filter=PlanRunTest*
    PlotComparisonTest
    PlotTest
    PythonTest.describe
    PythonTest.serve
    RecordUndoTest
    ResetUndoTest
    ResultExportTest
    RsrpPageTest
    RsrpReportTest
    SettingsBytesTest
    TxStartStopTest)

# LABELS of a run: of its kind, and "long" where it is for another build.
function(quorlin_labels out run kind)
  set(labels ${kind})
  foreach(build address none)
    if(run IN_LIST QUORLIN_LONG_RUNS_${build} AND NOT QUORLIN_SANITIZE STREQUAL build)
      list(APPEND labels long)
    endif()
  endforeach()
  set(${out} "${labels}" PARENT_SCOPE)
endfunction()
