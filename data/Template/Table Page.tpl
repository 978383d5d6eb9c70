<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>Enter_Title_Here</title>
<style>
body { margin: 2em auto; max-width: 50em; padding: 0 1em; font-family: sans-serif; }
table { width: 100%; border-collapse: collapse; }
caption { padding: 0.5em 0; font-weight: bold; text-align: left; }
th, td { padding: 0.4em 0.6em; border: 1px solid; text-align: left; vertical-align: top; }
</style>
</head>
<body>
<h1>Heading of the page</h1>
<table>
<caption>What the table shows</caption>
<thead>
<tr><th scope="col">Name</th><th scope="col">Place</th><th scope="col">Number</th></tr>
</thead>
<tbody>
<tr><th scope="row">First</th><td>Here</td><td>1</td></tr>
<tr><th scope="row">Second</th><td>There</td><td>2</td></tr>
</tbody>
<tfoot>
<tr><th scope="row" colspan="2">Together</th><td>3</td></tr>
</tfoot>
</table>
</body>
</html>
