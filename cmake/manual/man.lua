-- Pandoc filter for the man page.

-- Main headings are in capitals, as man pages have them.
function Header(header)
  if header.level == 1 then
    return pandoc.walk_block(header, {
      Str = function(word) return pandoc.Str(word.text:upper()) end,
    })
  end
end

-- Tables as wide as the lines would stand over them, for the space between their columns.
function Table(tbl)
  for _, column in ipairs(tbl.colspecs) do
    if column[2] then
      column[2] = column[2] * 0.92
    end
  end
  return tbl
end
