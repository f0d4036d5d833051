# Every section that opens from a list: its list, and what the list's first line that opens leads to.
# Sourced by tour.sh.

visit_sections() {
  visit 3 lessons RVP1 RVP2
  visit 4 listening RN1 RN2
  visit 5 analysed-texts R1 R2
  visit 7 speaking R1 R2
  local bank
  for bank in 10 11 12 13 14 15 16 17 18; do
    visit "$bank" "bank-$((bank - 9))" RN1 "(RDT|RABCD|Rsai)"
  done
  visit_settings
}

visit() { # BUTTON NAME LIST PAGE
  click_button "$1"
  expect_note "focus=$3 "
  settle "$(printf '20-%02d-%s' "$1" "$2")"
  # Headings do not open.
  local tries
  for tries in 1 2 3 4 5; do
    press Return
    sleep 1
    [[ "$(state)" =~ focus=$4\  ]] && break
    press Down
  done
  [[ "$(state)" =~ focus=$4\  ]] || fail "no line of $3 opens in section $1"
  settle "$(printf '20-%02d-%s-open' "$1" "$2")"
  leave_to "$3"
  # The banks go back to the listening button.
  press Escape
  expect_note "visible=, "
  passed "section $1, $2"
}

visit_settings() {
  click_button 8
  expect_note "focus=RAmthanh "
  settle 20-08-settings
  leave_to but8
  passed "section 8, settings"
}
