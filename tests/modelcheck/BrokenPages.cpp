#include "tests/modelcheck/BrokenPages.h"

namespace {

constexpr SBrokenPage kPages[] = {
    {"bad_parse.json", "small.ui",
     "bad_parse.json: (document): line 3: unterminated object [parse]"},
    {"bad_root.json", "small.ui", "bad_root.json: (document): the root is no object [root]"},
    {"bad_interface_none.json", "empty.ui",
     "bad_interface_none.json: (document): has neither cmdIf nor calDataIf [interface]"},
    {"bad_interface_both.json", "small.ui",
     "bad_interface_both.json: (document): has both cmdIf and calDataIf [interface]"},
    {"bad_key_root.json", "small.ui",
     "bad_key_root.json: modelname: unknown key \"modelname\" [unknown-key]"},
    {"bad_key_section.json", "small.ui",
     "bad_key_section.json: cmdIf.results: unknown key \"results\" [unknown-key]"},
    {"bad_key_group.json", "small.ui",
     "bad_key_group.json: cmdIf.request.group1.groupTitle: unknown key \"groupTitle\" "
     "[unknown-key]"},
    {"bad_key_group_of_other_type.json", "small.ui",
     "bad_key_group_of_other_type.json: cmdIf.request.group1.instanceList: key \"instanceList\" "
     "has no meaning in groupType 1 [unknown-key]"},
    {"bad_key_column_table.json", "table.ui",
     "bad_key_column_table.json: calDataIf.data.group1.memberProperty.dimensionCount: unknown "
     "key \"dimensionCount\" [unknown-key]"},
    {"bad_key_column_in_scalar_group.json", "small.ui",
     "bad_key_column_in_scalar_group.json: cmdIf.request.group1.memberProperty.startIndex: key "
     "\"startIndex\" has no meaning in groupType 1 [unknown-key]"},
    {"bad_key_member.json", "small.ui",
     "bad_key_member.json: cmdIf.request.group1.memberProperty.band.colour: unknown key \"colour\" "
     "[unknown-key]"},
    {"bad_key_row_member.json", "rows.ui",
     "bad_key_row_member.json: cmdIf.response.group1.memberProperty.RSRP.publishValueList: key "
     "\"publishValueList\" has no meaning in groupType 2 [unknown-key]"},
    {"bad_key_trait.json", "small.ui",
     "bad_key_trait.json: cmdIf.request.group1.memberProperty.band.trait.values: unknown key "
     "\"values\" [unknown-key]"},
    {"bad_key_value.json", "small.ui",
     "bad_key_value.json: cmdIf.request.group1.memberProperty.gain.trait.value.decimals: unknown "
     "key \"decimals\" [unknown-key]"},
    {"bad_key_value_pair.json", "small.ui",
     "bad_key_value_pair.json: cmdIf.request.group1.memberProperty.gain.trait.valuePair[n1]."
     "step: unknown key \"step\" [unknown-key]"},
    {"bad_runtime_value.json", "small.ui",
     "bad_runtime_value.json: cmdIf.request.group1.memberValue: key \"memberValue\" is made at run "
     "time [runtime-key]"},
    {"bad_runtime_root.json", "small.ui",
     "bad_runtime_root.json: emptyModel: key \"emptyModel\" is made at run time [runtime-key]"},
    {"bad_runtime_rows.json", "rows.ui",
     "bad_runtime_rows.json: cmdIf.response.group1.instanceList: \"instanceList\" is filled at run "
     "time [runtime-key]"},
    {"bad_missing_support.json", "small.ui",
     "bad_missing_support.json: cmdIf.request.group1.memberProperty.band.defaultSupport: key "
     "\"defaultSupport\" is missing [missing-key]"},
    {"bad_missing_null.json", "small.ui",
     "bad_missing_null.json: cmdIf.request.group1.memberProperty.gain.trait.defaultValue: key "
     "\"defaultValue\" is missing [missing-key]"},
    {"bad_missing_choices.json", "small.ui",
     "bad_missing_choices.json: cmdIf.request.group1.memberProperty.gain.trait.value: key "
     "\"value\" is missing: data type \"range\" has nothing to offer [missing-key]"},
    {"bad_missing_column_start.json", "table.ui",
     "bad_missing_column_start.json: calDataIf.data.group1.memberProperty.startIndex: key "
     "\"startIndex\" is missing, and there is no colFieldCaptionList [missing-key]"},
    {"bad_type_flag.json", "small.ui",
     "bad_type_flag.json: cmdIf.request.group1.memberProperty.band.defaultSupport: is not 1 or 0 "
     "[wrong-type]"},
    {"bad_type_items.json", "small.ui",
     "bad_type_items.json: cmdIf.request.group1.memberProperty.band.trait.value: is not an array "
     "of texts, as data type \"list\" wants [wrong-type]"},
    {"bad_type_limit.json", "small.ui",
     "bad_type_limit.json: cmdIf.request.group1.memberProperty.gain.trait.value.max: is not a "
     "whole number [wrong-type]"},
    {"bad_type_status.json", "small.ui",
     "bad_type_status.json: cmdIf.request.group1.memberProperty.gain.trait.enableStatusPair[2]: "
     "is not 1 or 0 [wrong-type]"},
    {"bad_type_unsigned_limit.json", "table.ui",
     "bad_type_unsigned_limit.json: calDataIf.data.group1.memberProperty.level.trait.value.min: "
     "is not the text of a decimal number without a sign [wrong-type]"},
    {"bad_type_boolean_pair.json", "small_boolean.ui",
     "bad_type_boolean_pair.json: cmdIf.request.group1.memberProperty.gain.trait.valuePair[n1]: "
     "is not \"true\" or \"false\", as data type \"boolean\" wants [wrong-type]"},
    {"bad_group_type.json", "small.ui",
     "bad_group_type.json: cmdIf.request.group1.groupType: groupType is not 1, 2 or 3 "
     "[group-type]"},
    {"bad_data_type.json", "small.ui",
     "bad_data_type.json: cmdIf.request.group1.memberProperty.band.trait.dataType: unknown data "
     "type \"combo\" [data-type]"},
    {"bad_type_in_group.json", "table.ui",
     "bad_type_in_group.json: calDataIf.data.group1.memberProperty.level.trait.dataType: data "
     "type \"boolean\" cannot be shown in groupType 3 [type-in-group]"},
    {"bad_type_in_scalar_group.json", "small.ui",
     "bad_type_in_scalar_group.json: cmdIf.request.group1.memberProperty.gain.trait.dataType: "
     "data type \"unsignedRange\" cannot be shown in groupType 1 [type-in-group]"},
    {"bad_list_without_member.json", "small.ui",
     "bad_list_without_member.json: cmdIf.request.group1.memberList[power]: \"power\" has no "
     "object in memberProperty [list-without-member]"},
    {"bad_member_not_listed.json", "small.ui",
     "bad_member_not_listed.json: cmdIf.request.group1.memberProperty.gain: \"gain\" is not in "
     "memberList [member-not-listed]"},
    {"bad_duplicate_entry.json", "small.ui",
     "bad_duplicate_entry.json: cmdIf.request.group1.memberList[band]: \"band\" stands there twice "
     "[duplicate-entry]"},
    {"bad_key_letters.json", "small_two.ui",
     "bad_key_letters.json: cmdIf.request.group1.memberProperty.rf_gain: key \"rf_gain\" holds "
     "\"_\" "
     "or \".\": no widget can be named after it [key-letters]\n"
     "bad_key_letters.json: cmdIf.request.group1.memberProperty.rf_gain: no widget is named "
     "after this member [member-without-widget]"},
    {"bad_key_letters_of_group.json", "small.ui",
     "bad_key_letters_of_group.json: cmdIf.response.group.2: key \"group.2\" holds \"_\" or \".\": "
     "no "
     "widget can be named after it [key-letters]"},
    {"bad_key_caption.json", "rows.ui",
     "bad_key_caption.json: cmdIf.response.group1.memberProperty.captionMode: key \"captionMode\" "
     "holds the word \"caption\": a widget named after it counts as a caption [key-caption]"},
    {"bad_key_point.json", "small.ui",
     "bad_key_point.json: cmdIf.request.group1.memberProperty.route.trait.valuePair[n1.5]: key "
     "\"n1.5\" holds a point: its entry cannot be found [key-point]"},
    {"bad_path_publish.json", "small.ui",
     "bad_path_publish.json: cmdIf.request.group1.memberProperty.band.publishValueList[request."
     "group1.memberProperty.bandwidth]: \"request.group1.memberProperty.bandwidth\" names no "
     "member [path-names-nothing]"},
    {"bad_path_publish_status.json", "small.ui",
     "bad_path_publish_status.json: cmdIf.request.group1.memberProperty.route."
     "publishEnableStatusList[request.group1.memberProperty.power]: \"request.group1."
     "memberProperty.power\" names no member [path-names-nothing]"},
    {"bad_path_subscribe.json", "small.ui",
     "bad_path_subscribe.json: cmdIf.request.group1.memberProperty.route."
     "subscribeValueList[request.group1.band]: \"request.group1.band\" names no member "
     "[path-names-nothing]"},
    {"bad_path_subscribe_one.json", "small.ui",
     "bad_path_subscribe_one.json: cmdIf.request.group1.memberProperty.route."
     "subscribeValue[cmdIf.request.group1.memberProperty.band]: \"cmdIf.request.group1."
     "memberProperty.band\" names no member [path-names-nothing]"},
    {"bad_path_subscribe_status.json", "small.ui",
     "bad_path_subscribe_status.json: cmdIf.request.group1.memberProperty.gain."
     "subscribeEnableStatusList[request.group1.memberProperty.mode]: \"request.group1."
     "memberProperty.mode\" names no member [path-names-nothing]"},
    {"bad_publish_not_subscribed.json", "small.ui",
     "bad_publish_not_subscribed.json: cmdIf.request.group1.memberProperty.band."
     "publishValueList[request.group1.memberProperty.gain]: publishes values to \"request.group1."
     "memberProperty.gain\", which does not subscribe to it [publish-not-subscribed]"},
    {"bad_publish_status_not_subscribed.json", "small.ui",
     "bad_publish_status_not_subscribed.json: cmdIf.request.group1.memberProperty.band."
     "publishEnableStatusList[request.group1.memberProperty.gain]: publishes enable status to "
     "\"request.group1.memberProperty.gain\", which does not subscribe to it "
     "[publish-not-subscribed]"},
    {"bad_subscribe_not_published.json", "small.ui",
     "bad_subscribe_not_published.json: cmdIf.request.group1.memberProperty.route."
     "subscribeValue[request.group1.memberProperty.band]: subscribes to \"request.group1."
     "memberProperty.band\", which publishes no values to it [subscribe-not-published]"},
    {"bad_status_subscribe_not_published.json", "small.ui",
     "bad_status_subscribe_not_published.json: cmdIf.request.group1.memberProperty.gain."
     "subscribeEnableStatusList[request.group1.memberProperty.band]: subscribes to \"request."
     "group1.memberProperty.band\", which publishes no enable status to it "
     "[status-subscribe-not-published]"},
    {"bad_status_target_without_pair.json", "small.ui",
     "bad_status_target_without_pair.json: cmdIf.request.group1.memberProperty.route."
     "publishEnableStatusList[request.group1.memberProperty.gain]: publishes enable status to "
     "\"request.group1.memberProperty.gain\", which has no enableStatusPair "
     "[status-target-without-pair]"},
    {"bad_status_pair_unpublished.json", "small.ui",
     "bad_status_pair_unpublished.json: cmdIf.request.group1.memberProperty.gain.trait."
     "enableStatusPair: no member publishes enable status to this one [status-pair-unpublished]"},
    {"bad_cannot_publish.json", "small.ui",
     "bad_cannot_publish.json: cmdIf.request.group1.memberProperty.gain.publishValueList: a "
     "range of groupType 1 publishes no values; only a list or a boolean of groupType 1 does "
     "[cannot-publish]"},
    {"bad_cannot_publish_status.json", "table.ui",
     "bad_cannot_publish_status.json: calDataIf.data.group1.memberProperty.level."
     "publishEnableStatusList: a range of groupType 3 publishes no enable status; only a list, a "
     "boolean or a range of groupType 1 does [cannot-publish]"},
    {"bad_cannot_follow.json", "table_route.ui",
     "bad_cannot_follow.json: calDataIf.config.group1.memberProperty.route.publishValueList[data."
     "group1.memberProperty.name]: publishes values to \"data.group1.memberProperty.name\", a "
     "label of groupType 3 that cannot follow [cannot-follow]"},
    {"bad_two_subscriptions.json", "small.ui",
     "bad_two_subscriptions.json: cmdIf.request.group1.memberProperty.route: has both "
     "subscribeValue and subscribeValueList [two-subscriptions]"},
    {"bad_subscribe_without_pair.json", "small.ui",
     "bad_subscribe_without_pair.json: cmdIf.request.group1.memberProperty.route: subscribes, "
     "but has no valuePair [subscribe-without-pair]"},
    {"bad_pair_without_subscribe.json", "small.ui",
     "bad_pair_without_subscribe.json: cmdIf.request.group1.memberProperty.gain.trait.valuePair: "
     "has a valuePair, but subscribes to nothing [pair-without-subscribe]"},
    {"bad_value_and_pair.json", "small.ui",
     "bad_value_and_pair.json: cmdIf.request.group1.memberProperty.route.trait: has both value "
     "and valuePair; only valuePair is read [value-and-pair]"},
    {"bad_cycle.json", "small.ui",
     "bad_cycle.json: cmdIf.request.group1.memberProperty.band: publishes to itself: request."
     "group1.memberProperty.band -> request.group1.memberProperty.route -> request.group1."
     "memberProperty.band [cycle]"},
    {"bad_cycle_through_status.json", "small.ui",
     "bad_cycle_through_status.json: cmdIf.request.group1.memberProperty.band: publishes to "
     "itself: request.group1.memberProperty.band -> request.group1.memberProperty.route -> "
     "request.group1.memberProperty.band [cycle]"},
    {"bad_cycle_of_three.json", "small_mode.ui",
     "bad_cycle_of_three.json: cmdIf.request.group1.memberProperty.band: publishes to itself: "
     "request.group1.memberProperty.band -> request.group1.memberProperty.route -> request."
     "group1.memberProperty.mode -> request.group1.memberProperty.band [cycle]"},
    {"bad_default_number.json", "small.ui",
     "bad_default_number.json: cmdIf.request.group1.memberProperty.gain.trait.defaultValue: "
     "default is the JSON number 5, which reads as an empty text; write \"5\" [default-number]"},
    {"bad_default_zero.json", "small.ui",
     "bad_default_zero.json: cmdIf.request.group1.memberProperty.gain.trait.defaultValue: "
     "default is the JSON number 0; write \"0\" [default-zero]"},
    {"bad_default_no_number.json", "small.ui",
     "bad_default_no_number.json: cmdIf.request.group1.memberProperty.gain.trait.defaultValue: "
     "default \"5.5\" is no number for data type \"range\" [default-no-number]"},
    {"bad_default_no_array.json", "table.ui",
     "bad_default_no_array.json: calDataIf.data.group1.memberProperty.name.trait.defaultValue: "
     "\"NA\" is no array; it reads as an empty one [default-no-array]"},
    {"bad_default_not_in_list.json", "small.ui",
     "bad_default_not_in_list.json: cmdIf.request.group1.memberProperty.band.trait.defaultValue: "
     "default \"n3\" is not among the items [default-not-in-list]"},
    {"bad_default_not_in_pair.json", "small.ui",
     "bad_default_not_in_pair.json: cmdIf.request.group1.memberProperty.route.trait."
     "defaultValue: default \"7\" is not among the items [default-not-in-list]"},
    {"bad_default_outside_limits.json", "small.ui",
     "bad_default_outside_limits.json: cmdIf.request.group1.memberProperty.gain.trait."
     "defaultValue: default 11 is not within 0 to 10 [default-outside-limits]"},
    {"bad_default_column_outside.json", "table.ui",
     "bad_default_column_outside.json: calDataIf.data.group1.memberProperty.level.trait."
     "defaultValue: default -6 is not within -5 to 5 [default-outside-limits]"},
    {"bad_limits_reversed.json", "small.ui",
     "bad_limits_reversed.json: cmdIf.request.group1.memberProperty.gain.trait.value: min 10 is "
     "above max 0 [limits-reversed]"},
    {"bad_range_list.json", "small.ui",
     "bad_range_list.json: cmdIf.request.group1.memberProperty.gain.trait.value.rangeCheck: "
     "\"0-5\" is no list such as 0,1920000~1980000 [range-list]"},
    {"bad_column_captions.json", "table.ui",
     "bad_column_captions.json: calDataIf.data.group1.memberProperty.colFieldCaptionList: 3 "
     "captions for 4 columns [column-captions]"},
    {"small.json", "bad_parse.ui",
     "bad_parse.ui: (form): line 2: Premature end of document. [parse]"},
    {"small.json", "bad_root.ui",
     "bad_root.ui: (form): line 1: The root element is not \"ui\". [parse]"},
    {"small.json", "bad_member_without_widget.ui",
     "small.json: cmdIf.request.group1.memberProperty.gain: no widget is named after this member "
     "[member-without-widget]"},
    {"small.json", "bad_widget_without_member.ui",
     "bad_widget_without_member.ui: cmdIf_request_group1_memberProperty_power: \"cmdIf.request."
     "group1.memberProperty.power\" is no member [widget-without-member]"},
    {"small.json", "bad_widget_class.ui",
     "bad_widget_class.ui: cmdIf_request_group1_memberProperty_gain: is a QDoubleSpinBox; data "
     "type \"range\" wants a QSpinBox [widget-class]"},
    {"small.json", "bad_widget_subclass.ui",
     "bad_widget_subclass.ui: cmdIf_request_group1_memberProperty_band: is a CBandComboBox; data "
     "type \"list\" wants a QComboBox [widget-class]"},
    {"small.json", "bad_widget_duplicate.ui",
     "bad_widget_duplicate.ui: cmdIf_request_group1_memberProperty_band: another widget has the "
     "same name [widget-duplicate]"},
    {"small.json", "bad_caption_names_nothing.ui",
     "bad_caption_names_nothing.ui: cmdIf_request_group1_memberProperty_power_caption: \"cmdIf."
     "request.group1.memberProperty.power\" is no member [caption-names-nothing]"},
    {"small.json", "bad_caption_misspelt.ui",
     "bad_caption_misspelt.ui: cmdIf_request_group1_memberProperty_gain_cpation: names nothing: "
     "a caption's name ends in \"_caption\", not in \"_cpation\" [caption-names-nothing]"},
    {"small.json", "bad_caption_suffix.ui",
     "bad_caption_suffix.ui: cmdIf_request_group1_memberProperty_gain_caption2: a caption's name "
     "ends in \"_caption\" [caption-names-nothing]"},
    {"small.json", "bad_caption_class.ui",
     "bad_caption_class.ui: cmdIf_request_group1_memberProperty_gain_caption: is a QLineEdit; a "
     "caption is a QLabel or a QGroupBox [caption-class]"},
    {"table.json", "bad_table_missing.ui",
     "table.json: calDataIf.data.group1: no QTableWidget is named after a member of this group "
     "[table-missing]"},
    {"table.json", "bad_table_duplicate.ui",
     "bad_table_duplicate.ui: calDataIf_data_group1_memberProperty_name: is a second table of "
     "\"calDataIf.data.group1\" beside calDataIf_data_group1_memberProperty_level "
     "[table-duplicate]"},
    {"table.json", "bad_table_class.ui",
     "bad_table_class.ui: calDataIf_data_group1_memberProperty_name: is a QSpinBox; a group of "
     "groupType 3 wants a QTableWidget [widget-class]"},
};

}  // namespace

SBrokenPages BrokenPages()
{
    return {kPages, sizeof(kPages) / sizeof(kPages[0])};
}
