#include "View/engine/RelevanceWords.h"

const SRelevanceWords kValueWords = {
    .publish =
        {
            .start = "============ [Start][Value Relevance] CurrentText  =========== ",
            .key = "---> [Value Relevance] Key  <--- ",
            .publishFound = "---> [Value Relevance] Publish Value List <--- ",
            .target = "---> [Value Relevance] ====== Current Publish Value ====== <--- ",
            .groupType = "---> [Value Relevance] GroupType <--- ",
            .subscribeFound = "---> [Value Relevance][type1] Has the subscribeValueList <--- ",
            .targetKey = "---> [Value Relevance][type1] Key <--- ",
            .unsupported = "---> [Fail][Value Relevance] Not support this group type yet <--- ",
            .done = "============ [Done][Value Relevance] =========== ",
        },
    .scalar =
        {
            .none = "---> [Fail][Value Relevance][type1] Cannot find widget pointer <--- ",
            .found = "---> [Value Relevance][type1] Find!!!!!!! <--- ",
            .hidden = "---> Skip - invisible <--- ",
            .entry =
                {
                    .noTrait = "---> [Fail][Value Relevance][type1] Cannot get the Trait JSON "
                               "object <--- ",
                    .pairFound = "---> [Value Relevance][type1] Vair Pair JSON object <--- ",
                    .noPair = "---> [Fail][Value Relevance][type1] Cannot get the valuePair JSON "
                              "object <--- ",
                    .noEntry = "---> [Fail][Value Relevance][type1] Cannot get the mapping of key "
                               "and value in the ValuePair JSON Object",
                },
        },
    .table =
        {
            .rows = "---> [Value Relevance][type3] Get row info <--- ",
            .columns = "---> [Value Relevance][type3] Get column info <--- ",
            .notATable = "---> [Fail][Package][type3] Find the mapping name but it is not table "
                         "widget type <--- ",
            .found = "---> [Value Relevance][type3] Find!!!!!!!!! <--- ",
            .none = "---> [Fail][Value Relevance][type3] Cannot fine widget pointer",
            .noRow = "---> [Fail][Value Relevance][type3] Cannot fine row index",
            .rowFound = "---> [Value Relevance][type3] Find the row index <--- ",
            .entry =
                {
                    .noTrait = "---> [Fail][Value Relevance][type3] Cannot fine the Trait JSON "
                               "Object",
                    .pairFound = "---> [Value Relevance][type3] Vair Pair JSON object <--- ",
                    .noPair = "---> [Fail][Value Relevance][type3] Cannot get the ValuePair JSON "
                              "Object",
                    .noEntry = "---> [Fail][Value Relevance][type3] Cannot get the mapping of key "
                               "and value in the ValuePair JSON Object",
                },
        },
};

const SRelevanceWords kStatusWords = {
    .publish =
        {
            .start = "============ [Start][Status Relevance] CurrentText =========== ",
            .key = "---> [Status Relevance] Key  <--- ",
            .publishFound = "---> [Status Relevance] Publish Value List <--- ",
            .target = "====== [Status Relevance] Current Publish Value ====== ",
            .groupType = "---> [Status Relevance] GroupType <--- ",
            .subscribeFound = "---> [Status Relevance][type1] Has the subscribeEnableStatusList "
                              "<--- ",
            .targetKey = "---> [Status Relevance][type1] Key <--- ",
            .unsupported = "---> [Fail][Status Relevance] Not support this group type yet <--- ",
            .done = "============ [Done][Status Relevance] =========== ",
        },
    .scalar =
        {
            .none = "---> [Fail][Status Relevance][type1] Cannot find widget pointer <--- ",
            .found = "---> [Status Relevance][type1] Find the widget pointer!!!!!!!!! <--- ",
            .hidden = "---> Skip: invisible <--- ",
            .entry =
                {
                    .noTrait = "---> [Fail][Status Relevance][type1] Cannot find the trait JSON "
                               "object <--- ",
                    .pairFound = "---> [Status Relevance][type1] Enable Status Pair <--- ",
                    .noPair = "---> [Fail][Status Relevance][type1] Cannot find the "
                              "EnableStatusPair JSON object <--- ",
                    .entryFound = "---> [Status Relevance][type1] Final enable <--- ",
                    .noEntry = "---> [Fail][Status Relevance][type1] Cannot get the mapping of "
                               "key and value in the ValuePair JSON Object",
                },
        },
    .table =
        {
            .rows = "---> [Status Relevance][type3] Get row info <--- ",
            .notATable = "---> [Fail][Package][type3]Find the mapping name but It is not table "
                         "widget type <--- ",
            .found = "---> [Status Relevance][type3] Find the widget pointer!!!!!!!!! <--- ",
            .none = "---> [Fail][Status Relevance][type3] Cannot fine widget pointer",
            .rowFound = "---> [Status Relevance][type3] Find the row index <--- ",
            .entry =
                {
                    .traitFound = "---> [Status Relevance][type3] Trait Object <--- ",
                    .noTrait = "---> [Fail][Status Relevance][type3] Cannot fine the Trait JSON "
                               "Object",
                    .noPair = "---> [Fail][Status Relevance][type3] Cannot fine the "
                              "EnableStatusPair JSON Object",
                    .entryFound = "---> [Status Relevance][type3] Final enable <--- ",
                    .noEntry = "---> [Fail][Status Relevance][type3] Cannot get the mapping of "
                               "key and value in the ValuePair JSON Object",
                },
        },
};
