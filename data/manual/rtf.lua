-- What pandoc's rich text lacks for the manual: headings that stay with their text and can be jumped to, links within
-- the document, pictures as wide as the page, tables without empty lines, a little space behind lists.

local pageWidth = 9700  -- in twentieths of a point

local function bookmark(id) return (id:gsub('%-', '_')) end

local headingSizes = {36, 28, 23}  -- in half points

function Header(heading)
  local look = string.format('{\\pard \\keepn \\ql \\f0 \\sb%d \\sa100 \\outlinelevel%d \\cf3 \\b \\fs%d ',
    heading.level == 1 and 0 or 320, heading.level - 1, headingSizes[heading.level])
  local name = bookmark(heading.identifier)
  return pandoc.RawBlock('rtf', look .. '{\\*\\bkmkstart ' .. name .. '}' .. pandoc.utils.stringify(heading) ..
    '{\\*\\bkmkend ' .. name .. '}\\par}')
end

function Link(link)
  local id = link.target:match('^#(.*)$')
  if not id then return nil end
  return pandoc.RawInline('rtf', '{\\field{\\*\\fldinst HYPERLINK \\\\l "' .. bookmark(id) .. '"}{\\fldrslt {\\cf3\\ul ' ..
    pandoc.utils.stringify(link) .. '}}}')
end

function Image(image)
  image.attributes.width = '6.5in'
  return image
end

local function spaceBehind(list) return {list, pandoc.RawBlock('rtf', '{\\pard \\f0 \\fs8 \\sa0 \\par}')} end
BulletList, OrderedList = spaceBehind, spaceBehind

local function cellText(blocks, isHead, align)
  local text = pandoc.write(pandoc.Pandoc(blocks), 'rtf'):gsub('^{\\pard.-\\fi%-?%d+ ', ''):gsub('\\par}%s*$', '')
  return string.format('{\\pard\\intbl %s \\f0 \\sb30 \\sa30 %s%s\\cell}', align == 'AlignRight' and '\\qr' or '\\ql',
    isHead and '\\b ' or '', text)
end

local function row(cells, isHead, simple)
  local edges, texts, edge = {}, {}, 0
  for i, cell in ipairs(cells) do
    local width = simple.widths[i] > 0 and simple.widths[i] or 1 / #cells
    edge = edge + width * pageWidth
    edges[i] = string.format('\\clbrdrb\\brdrs\\brdrw%d\\cellx%d', isHead and 15 or 5, math.floor(edge))
    texts[i] = cellText(cell, isHead, simple.aligns[i])
  end
  return '{\\trowd\\trgaph90\\trkeep' .. (isHead and '\\trhdr' or '') .. table.concat(edges) .. '\n' ..
    table.concat(texts, '\n') .. '\n\\row}'
end

function Table(t)
  local simple = pandoc.utils.to_simple_table(t)
  local rows = {row(simple.headers, true, simple)}
  for _, cells in ipairs(simple.rows) do rows[#rows + 1] = row(cells, false, simple) end
  return pandoc.RawBlock('rtf', table.concat(rows, '\n') .. '\n{\\pard \\f0 \\fs8 \\sa60 \\par}')
end
