# cmake -DFOLDER=... -P make-samples.cmake: lays out sample drawings; files that are there already stay.
set(files
  "plan.dwg" "site plan.dwg" "elevation north.dwg" "elevation south.dwg" "Grundriß Büro.dwg" "title frame.dwt"
  "notes.txt" "parts list.csv" "survey.pdf"
  "Details/stairs.dwg" "Details/window.dwg" "Details/door schedule.csv"
  "Old versions/plan 2019.dwg" "Old versions/plan 2020.dwg"
  "Überblick/overview.dwg")
foreach(file ${files})
  if(NOT EXISTS "${FOLDER}/${file}")
    string(REPEAT "Sample content of ${file}.\n" 40 content)
    file(WRITE "${FOLDER}/${file}" "${content}")
  endif()
endforeach()
