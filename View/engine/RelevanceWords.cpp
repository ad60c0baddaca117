// The words of value and status relevance.
#include "View/engine/RelevanceWords.h"

#include "View/engine/AutoBindingDataModelDockWidget.h"

const SRelevanceWords CAutoBindingDataModelDockWidget::kValueWords = {
    "============ [Start][Value Relevance] CurrentText  =========== ",
    "---> [Value Relevance] Key  <--- ",
    "publishValueList",
    "---> [Value Relevance] Publish Value List <--- ",
    "---> [Value Relevance] ====== Current Publish Value ====== <--- ",
    "---> [Value Relevance] GroupType <--- ",
    "subscribeValueList",
    "---> [Value Relevance][type1] Has the subscribeValueList <--- ",
    "---> [Value Relevance][type1] Key <--- ",
    "---> [Fail][Value Relevance] Not support this group type yet <--- ",
    "============ [Done][Value Relevance] =========== ",
    true,
    &CAutoBindingDataModelDockWidget::ApplyScalarValueRelevance,
    &CAutoBindingDataModelDockWidget::ApplyTableValueRelevance,
    {
        "---> [Fail][Value Relevance][type1] Cannot find widget pointer <--- ",
        "---> [Value Relevance][type1] Find!!!!!!! <--- ",
        "---> Skip - invisible <--- ",
        {
            "valuePair",
            nullptr,
            "---> [Fail][Value Relevance][type1] Cannot get the Trait JSON object <--- ",
            "---> [Value Relevance][type1] Vair Pair JSON object <--- ",
            "---> [Fail][Value Relevance][type1] Cannot get the valuePair JSON object <--- ",
            nullptr,
            "---> [Fail][Value Relevance][type1] Cannot get the mapping of key and value in the "
            "ValuePair JSON Object",
        },
    },
    {
        "---> [Value Relevance][type3] Get row info <--- ",
        "---> [Value Relevance][type3] Get column info <--- ",
        "---> [Fail][Package][type3] Find the mapping name but it is not table widget type <--- ",
        "---> [Value Relevance][type3] Find!!!!!!!!! <--- ",
        "---> [Fail][Value Relevance][type3] Cannot fine widget pointer",
        "---> [Fail][Value Relevance][type3] Cannot fine row index",
        "---> [Value Relevance][type3] Find the row index <--- ",
        {
            "valuePair",
            nullptr,
            "---> [Fail][Value Relevance][type3] Cannot fine the Trait JSON Object",
            "---> [Value Relevance][type3] Vair Pair JSON object <--- ",
            "---> [Fail][Value Relevance][type3] Cannot get the ValuePair JSON Object",
            nullptr,
            "---> [Fail][Value Relevance][type3] Cannot get the mapping of key and value in the "
            "ValuePair JSON Object",
        },
    },
};

const SRelevanceWords CAutoBindingDataModelDockWidget::kStatusWords = {
    "============ [Start][Status Relevance] CurrentText =========== ",
    "---> [Status Relevance] Key  <--- ",
    "publishEnableStatusList",
    "---> [Status Relevance] Publish Value List <--- ",
    "====== [Status Relevance] Current Publish Value ====== ",
    "---> [Status Relevance] GroupType <--- ",
    "subscribeEnableStatusList",
    "---> [Status Relevance][type1] Has the subscribeEnableStatusList <--- ",
    "---> [Status Relevance][type1] Key <--- ",
    "---> [Fail][Status Relevance] Not support this group type yet <--- ",
    "============ [Done][Status Relevance] =========== ",
    false,
    &CAutoBindingDataModelDockWidget::ApplyScalarStatusRelevance,
    &CAutoBindingDataModelDockWidget::ApplyTableStatusRelevance,
    {
        "---> [Fail][Status Relevance][type1] Cannot find widget pointer <--- ",
        "---> [Status Relevance][type1] Find the widget pointer!!!!!!!!! <--- ",
        "---> Skip: invisible <--- ",
        {
            "enableStatusPair",
            nullptr,
            "---> [Fail][Status Relevance][type1] Cannot find the trait JSON object <--- ",
            "---> [Status Relevance][type1] Enable Status Pair <--- ",
            "---> [Fail][Status Relevance][type1] Cannot find the EnableStatusPair JSON object "
            "<--- ",
            "---> [Status Relevance][type1] Final enable <--- ",
            "---> [Fail][Status Relevance][type1] Cannot get the mapping of key and value in the "
            "ValuePair JSON Object",
        },
    },
    {
        "---> [Status Relevance][type3] Get row info <--- ",
        nullptr,
        "---> [Fail][Package][type3]Find the mapping name but It is not table widget type <--- ",
        "---> [Status Relevance][type3] Find the widget pointer!!!!!!!!! <--- ",
        "---> [Fail][Status Relevance][type3] Cannot fine widget pointer",
        nullptr,
        "---> [Status Relevance][type3] Find the row index <--- ",
        {
            "enableStatusPair",
            "---> [Status Relevance][type3] Trait Object <--- ",
            "---> [Fail][Status Relevance][type3] Cannot fine the Trait JSON Object",
            nullptr,
            "---> [Fail][Status Relevance][type3] Cannot fine the EnableStatusPair JSON Object",
            "---> [Status Relevance][type3] Final enable <--- ",
            "---> [Fail][Status Relevance][type3] Cannot get the mapping of key and value in the "
            "ValuePair JSON Object",
        },
    },
};
