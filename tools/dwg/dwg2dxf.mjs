// Converts one DWG drawing to DXF:  dwg2dxf.mjs IN.dwg OUT.dxf
// One process a file: a drawing that brings the converter down spoils nothing else.
import { readFileSync, renameSync, rmSync, writeFileSync } from 'node:fs'
import { LibreDwg } from '@mlightcad/libredwg-web'

const [input, output] = process.argv.slice(2)
if (!output) {
  console.error('Usage: dwg2dxf.mjs IN.dwg OUT.dxf')
  process.exit(2)
}

// The library tells on the console what it couldn't make sense of; that is no failure by itself.
console.log = console.warn = (...words) => process.stderr.write(words.join(' ') + '\n')

const part = output + '.part'
try {
  const library = await LibreDwg.create()
  const bytes = readFileSync(input)
  const dxf = library.dwg_write_dxf(bytes.buffer.slice(bytes.byteOffset, bytes.byteOffset + bytes.length))
  if (!dxf || dxf.length === 0) throw new Error('no DWG drawing, damaged, or of a version that LibreDWG cannot read')
  writeFileSync(part, dxf)
  renameSync(part, output)
} catch (error) {
  rmSync(part, { force: true })
  console.error(error.message ?? error)
  process.exit(1)
}
