<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<meta name="description" content="What the article is about, in one sentence">
<meta name="author" content="Name of the author">
<title>Enter_Title_Here</title>
<style>
body { max-width: 40em; margin: 2em auto; padding: 0 1em; font-family: serif; line-height: 1.6; }
figure { margin: 1.5em 0; }
figcaption { font-size: 0.9em; }
blockquote { margin: 1.5em; font-style: italic; }
</style>
</head>
<body>
<article>
<header>
<h1>Heading of the article</h1>
<p>By Name of the author, <time datetime="2026-01-01">1 January 2026</time></p>
</header>
<p>What the article says, in two or three sentences that make one want to read it.</p>
<section>
<h2>First part</h2>
<p>A paragraph.</p>
<blockquote>
<p>What somebody has said.</p>
</blockquote>
</section>
<section>
<h2>Second part</h2>
<p>A paragraph with a <a href="https://example.org/">link to what it is based on</a>.</p>
<figure>
<pre>Something to be shown as it is</pre>
<figcaption>What there is to be seen</figcaption>
</figure>
</section>
<footer>
<p>Where more can be found.</p>
</footer>
</article>
</body>
</html>
